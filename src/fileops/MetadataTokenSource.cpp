#include "fileops/MetadataTokenSource.h"

#include <algorithm>

#include "core/TokenExpansion.h"
#include "metadata/mdlID3.h"
#include "platform/FileName.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"

namespace renvale::fileops {

const metadata::ExifTokenValues& MetadataTokenSource::Values(const QByteArray& folder,
                                                           const platform::FileName& file) {
  // Asked several times per file: the folder and name are compared as they
  // are, without a path made for each question.
  if (!cachedKnown_ || file.raw != cachedName_ || folder != cachedFolder_) {
    cachedFolder_ = folder;
    cachedName_ = file.raw;
    cachedKnown_ = true;
    cached_ = ReadValues(folder, file);
  }
  return cached_;
}

QString MetadataTokenSource::DateSourceText(const QByteArray& folder, const platform::FileName& file) {
  return metadata::DateOriginText(Values(folder, file).dateOrigin);
}

void MetadataTokenSource::Show(const QString& message) {
  if (sink_ != nullptr) {
    sink_->append(message);
  } else {
    messages_.Notify(message);
  }
}

QString MetadataTokenSource::ExifValue(const QByteArray& folder, const platform::FileName& file, core::Token token) {
  Values(folder, file);
  switch (token) {
    case core::Token::Date: return cached_.date;
    case core::Token::Time: return cached_.time;
    case core::Token::DateTime: return cached_.DateTime();
    case core::Token::Serial: return cached_.serial;
    default: return {};
  }
}

metadata::ExifTokenValues MetadataTokenSource::ReadValues(const QByteArray& folder, const platform::FileName& file) {
  metadata::ExifReadAhead::Result ahead;
  readAheadTaken_ = readAheadTaken_ || readAhead_ != nullptr;
  if (readAhead_ == nullptr || !readAhead_->Take(folder, file.raw, Formats(), &ahead)) {
    ahead.values = metadata::ReadExifTokenValuesQuietly(fs_, folder, file.raw, Formats(), &ahead.errorMessage,
                                                        &ahead.identity, &ahead.identityKnown);
  }
  if (!ahead.errorMessage.isEmpty()) Show(ahead.errorMessage);
  identityFresh_ = false;
  if (ahead.identityKnown && !ahead.identity.isDir) {
    identityFresh_ = true;
    identity_ = {ahead.identity.size, ahead.identity.modifiedNs, ahead.identity.device, ahead.identity.inode, true};
  }
  return ahead.values;
}

// A caller that knows the files early starts their reading then; the batch
// asking for the same files next keeps that reading, as long as nothing has
// been taken from it.
void MetadataTokenSource::ExpectExifValues(const QByteArray& folder, const std::vector<platform::FileName>& files,
                                           bool identities) {
  identityFresh_ = false;
  if (!fs_.ReadableFromAnyThread()) return;
  if (readAhead_ != nullptr && !readAheadTaken_ && folder == readAheadFolder_ &&
      std::equal(files.begin(), files.end(), readAhead_->Names().begin(), readAhead_->Names().end(),
                 [](const platform::FileName& file, const QByteArray& name) { return file.raw == name; })) {
    return;
  }
  std::vector<QByteArray> names;
  names.reserve(files.size());
  for (const platform::FileName& file : files) names.push_back(file.raw);
  readAhead_ = std::make_unique<metadata::ExifReadAhead>(
      fs_, folder, std::move(names), Formats(),
      identities ? metadata::ExifReader::Identity::Wanted : metadata::ExifReader::Identity::NotWanted);
  readAheadFolder_ = folder;
  readAheadTaken_ = false;
}

bool MetadataTokenSource::ValuesAtHand(const QByteArray& folder, const platform::FileName& file) {
  return readAhead_ == nullptr || folder != readAheadFolder_ || readAhead_->Ready(file.raw);
}

// Only the read made since the last call counts: values kept from an
// earlier one may describe a file that has changed since.
bool MetadataTokenSource::TakeReadIdentity(const QByteArray& folder, const platform::FileName& file,
                                           core::FileIdentity* identity) {
  const bool found = identityFresh_ && file.raw == cachedName_ && folder == cachedFolder_;
  identityFresh_ = false;
  if (found) *identity = identity_;
  return found;
}

void MetadataTokenSource::FileReplaced() {
  readAheadTaken_ = true;
  if (readAhead_ != nullptr) readAhead_->Drop();
}

void MetadataTokenSource::StopReadingAhead() {
  readAheadTaken_ = true;
  readAhead_.reset();
}

core::Id3Values MetadataTokenSource::Id3(const QByteArray& folder, const platform::FileName& file) {
  const metadata::Id3Values values = metadata::LoadId3Values(fs_, platform::JoinPath(folder, file.raw));
  return {values.title, values.artist, values.album, values.track};
}

}  // namespace renvale::fileops
