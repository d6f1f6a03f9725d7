#include "core/BatchFileNamer.h"

#include "core/AsciiFoldedName.h"
#include "core/FileNameRules.h"
#include "core/SeriesFormat.h"

namespace renvale::core {

namespace {

constexpr QByteArrayView kMp3 = ".mp3";

}  // namespace

BatchFileNamer::BatchFileNamer(const RenameContext& context, SeriesBox& box, const QByteArray& folder,
                               const QString& base, std::optional<int> randomCount,
                               RandomSeriesPool::RandomSource random)
    : context_(context), folder_(folder), base_(base), box_(box), counter_(box_, context.settings) {
  if (randomCount) {
    pool_.emplace(ReadSeriesNumber(box_.Text()), *randomCount, std::move(random));
  }
}

// A card's files mostly share one extension: the text made for the last
// one is handed out again, shared, rather than made anew for every file.
QString BatchFileNamer::Unexpanded(const QString& shown) {
  const QStringView extension = ExtensionOf(shown);
  if (extension.isEmpty()) return base_;
  if (extension != lastExtension_) {
    lastExtension_ = extension.toString();
    lastUnexpanded_ = base_ + (context_.settings.forceLowerCaseExtension ? lastExtension_.toLower() : lastExtension_);
  }
  return lastUnexpanded_;
}

// The extension runs from the last dot, so the raw name ends in ".mp3"
// exactly when the shown one's extension is ".mp3" in any letter case.
QString BatchFileNamer::Expand(const platform::FileName& file, const QString& shown, const QString& unexpanded) {
  seriesTaken_ = false;
  if (AsciiFoldedName::EndsWith(file.raw, kMp3)) id3_ = context_.tokens.Id3(folder_, file);
  return ExpandBatchTokens(unexpanded, [&](Token token) { return TokenValue(file, shown, token); });
}

QString BatchFileNamer::TokenValue(const platform::FileName& file, const QString& shown, Token token) {
  switch (token) {
    case Token::Title: return id3_.title;
    case Token::Artist: return id3_.artist;
    case Token::Album: return id3_.album;
    case Token::Track: return id3_.track;
    case Token::OrigFn: return SplitFileName(shown, false).base;
    case Token::Series: return NextSeriesText();
    default: return context_.tokens.ExifValue(folder_, file, token);
  }
}

QString BatchFileNamer::NextSeriesText() {
  seriesTaken_ = true;
  if (pool_) {
    if (const std::optional<qint64> drawn = pool_->Draw()) counter_.PutNextValue(*drawn);
  }
  return counter_.TakeSeriesText();
}

}  // namespace renvale::core
