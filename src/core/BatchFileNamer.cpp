#include "core/BatchFileNamer.h"

#include "core/FileNameRules.h"
#include "core/SeriesFormat.h"

namespace renvale::core {

namespace {

const QString kMp3 = QStringLiteral(".mp3");

}  // namespace

BatchFileNamer::BatchFileNamer(const RenameContext& context, SeriesBox& box, const QByteArray& folder,
                               const QString& base, std::optional<int> randomCount,
                               RandomSeriesPool::RandomSource random)
    : context_(context), folder_(folder), base_(base), box_(box), counter_(box_, context.settings) {
  if (randomCount) {
    pool_.emplace(ReadSeriesNumber(box_.Text()), *randomCount, std::move(random));
  }
}

QString BatchFileNamer::Unexpanded(const platform::FileName& file) const {
  return base_ + SplitFileName(file.Display(), context_.settings.forceLowerCaseExtension).extension;
}

QString BatchFileNamer::Expand(const platform::FileName& file, const QString& unexpanded) {
  seriesTaken_ = false;
  if (SplitFileName(file.Display(), false).extension.toLower() == kMp3) {
    id3_ = context_.tokens.Id3(folder_, file);
  }
  return ExpandBatchTokens(unexpanded, [&](Token token) { return TokenValue(file, token); });
}

QString BatchFileNamer::TokenValue(const platform::FileName& file, Token token) {
  switch (token) {
    case Token::Title: return id3_.title;
    case Token::Artist: return id3_.artist;
    case Token::Album: return id3_.album;
    case Token::Track: return id3_.track;
    case Token::OrigFn: return SplitFileName(file.Display(), false).base;
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
