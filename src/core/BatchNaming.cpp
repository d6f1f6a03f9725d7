#include "core/BatchNaming.h"

#include <optional>

#include "core/BatchFileNamer.h"
#include "core/SeriesBox.h"
#include "core/TokenExpansion.h"

namespace renvale::core {

namespace {

// The window's series box as it stands, copied: working names out must not
// take the numbers the batch (or a later one) hands out.
class CopiedSeriesBox : public SeriesBox {
 public:
  explicit CopiedSeriesBox(QString text) : text_(std::move(text)) {}
  QString Text() const override { return text_; }
  void SetText(const QString& text) override { text_ = text; }

 private:
  QString text_;
};

// Messages go to the collecting list for as long as this lives.
class CollectedMessages {
 public:
  explicit CollectedMessages(TokenSource& tokens) : tokens_(tokens) { tokens_.CollectMessages(&messages_); }
  ~CollectedMessages() { tokens_.CollectMessages(nullptr); }
  CollectedMessages(const CollectedMessages&) = delete;
  CollectedMessages& operator=(const CollectedMessages&) = delete;

  QStringList Take() { return std::exchange(messages_, {}); }

 private:
  TokenSource& tokens_;
  QStringList messages_;
};

int NumberedFiles(const std::vector<platform::FileName>& files, const FileRenamer& renamer) {
  int count = 0;
  for (const platform::FileName& file : files) {
    if (!renamer.Sets().TravelsWithSelectedHead(file.raw)) ++count;
  }
  return count;
}

}  // namespace

BatchNaming NameBatch(const RenameContext& context, const FileRenamer& renamer,
                      const std::vector<platform::FileName>& files, const QString& base, bool randomSeries,
                      bool withDateSources, RandomSeriesPool::RandomSource random) {
  BatchNaming naming{renamer.Folder(), base, context.view.SeriesText(), {}, {}};
  CopiedSeriesBox box(naming.seriesAtStart);
  std::optional<int> randomCount;
  if (randomSeries) randomCount = NumberedFiles(files, renamer);
  BatchFileNamer namer(context, box, naming.folder, base, randomCount, std::move(random));
  if (withDateSources || MentionsExifToken(base)) context.tokens.ExpectExifValues(naming.folder, files);
  CollectedMessages collected(context.tokens);
  naming.files.reserve(files.size());
  for (const platform::FileName& file : files) {
    NamedFile& named = naming.files.emplace_back();
    named.file = file;
    named.travels = renamer.Sets().TravelsWithSelectedHead(file.raw);
    if (!named.travels) {
      named.unexpanded = namer.Unexpanded(file);
      named.newName = namer.Expand(file, named.unexpanded);
      named.seriesTaken = namer.SeriesTaken();
      named.messages = collected.Take();
    }
    // A file whose name uses no date is read only for the preview, which
    // shows no message; the batch must not show one either.
    if (withDateSources) named.dateSource = context.tokens.DateSourceText(naming.folder, file);
    collected.Take();
    named.seriesAfter = box.Text();
  }
  naming.seriesAtEnd = box.Text();
  return naming;
}

}  // namespace renvale::core
