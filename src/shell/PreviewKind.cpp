#include "shell/PreviewKind.h"

#include <QStringList>

namespace renvale::shell {

PreviewKind PreviewKindFor(const QString& name, bool playQuickTime, bool playRealMedia) {
  static const QStringList media1 = {".avi", ".mpg", ".mpe", "mpeg"};
  static const QStringList quickTime = {".3gp", ".mov"};
  static const QStringList media2 = {".wmv", ".wav", ".wma", ".wmd", ".mp3"};
  static const QStringList media3 = {".mid", ".asf"};
  static const QStringList notice = {".exe", ".zip", ".txt", ".doc", ".eml", ".dat", ".ini", ".hlp", ".ppt"};
  const PreviewKind realMedia = playRealMedia ? PreviewKind::Media : PreviewKind::Notice;
  const QString four = name.right(4).toLower();
  if (media1.contains(four)) return PreviewKind::Media;
  if (quickTime.contains(four)) return playQuickTime ? PreviewKind::Media : PreviewKind::Notice;
  if (media2.contains(four)) return PreviewKind::Media;
  if (four == QLatin1String(".ram")) return realMedia;
  if (media3.contains(four)) return PreviewKind::Media;
  if (notice.contains(four)) return PreviewKind::Notice;
  const QString three = name.right(3).toLower();
  if (three == QLatin1String(".ra") || three == QLatin1String(".rm")) return realMedia;
  if (three == QLatin1String(".wm")) return PreviewKind::Media;
  return PreviewKind::Picture;
}

bool IsRawPictureName(const QString& name) {
  static const QStringList raw = {"cr2", "cr3", "crw", "nef", "nrw", "arw", "sr2",
                                  "dng", "orf", "rw2", "pef", "raf", "srw", "x3f"};
  const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
  return dot >= 0 && raw.contains(name.mid(dot + 1).toLower());
}

bool IsHeifPictureName(const QString& name) {
  const QString end = name.right(5).toLower();
  return end == QLatin1String(".heic") || end == QLatin1String(".heif");
}

}  // namespace renvale::shell
