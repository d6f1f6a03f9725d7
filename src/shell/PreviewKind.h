#pragma once

#include <QString>

namespace renvale::shell {

enum class PreviewKind { Picture, Media, Notice };

// The preview kind of a file by the last four, then the last three
// characters of its name in lower case. QuickTime kinds play only with
// "PlayQT", RealMedia kinds only with "PlayRM"; anything unknown is taken
// for a picture (the decoder says later whether it is one).
PreviewKind PreviewKindFor(const QString& name, bool playQuickTime, bool playRealMedia);

// Whether the name is one of the camera RAW kinds shown through the JPEG
// preview embedded in them.
bool IsRawPictureName(const QString& name);

// Whether the name is a HEIC or HEIF picture, decoded apart from the rest.
bool IsHeifPictureName(const QString& name);

}  // namespace renvale::shell
