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

struct BatchNames::Parts {
  Parts(const RenameContext& context, const QByteArray& folder, const QString& base,
        std::optional<int> randomCount, RandomSeriesPool::RandomSource random)
      : box(context.view.SeriesText()),
        namer(context, box, folder, base, randomCount, std::move(random)),
        collected(context.tokens) {}

  CopiedSeriesBox box;
  BatchFileNamer namer;
  CollectedMessages collected;
};

BatchNames::BatchNames(const RenameContext& context, const FileRenamer& renamer,
                       const std::vector<platform::FileName>& files, const QString& base, bool randomSeries,
                       bool withDateSources, RandomSeriesPool::RandomSource random)
    : context_(context), renamer_(renamer), withDateSources_(withDateSources) {
  std::optional<int> randomCount;
  if (randomSeries) randomCount = NumberedFiles(files, renamer);
  // Only a journal asks who each file is; a preview, or a batch that keeps
  // no journal, is spared a call per file for it.
  if (withDateSources || MentionsExifToken(base)) {
    context.tokens.ExpectExifValues(renamer.Folder(), files, context.recorder != nullptr);
  }
  parts_ = std::make_unique<Parts>(context, renamer.Folder(), base, randomCount, std::move(random));
  // A read before the batch says nothing about the files as they are now.
  FileIdentity before;
  context.tokens.TakeReadIdentity(renamer.Folder(), {}, &before);
}

BatchNames::~BatchNames() = default;

bool BatchNames::AtHand(const platform::FileName& file) const {
  return context_.tokens.ValuesAtHand(renamer_.Folder(), file);
}

QString BatchNames::SeriesText() const { return parts_->box.Text(); }

NamedFile BatchNames::Next(const platform::FileName& file) {
  NamedFile named;
  named.file = file;
  named.travels = renamer_.Sets().TravelsWithSelectedHead(file.raw);
  if (!named.travels) {
    named.shown = file.Display();
    const QString& shown = named.shown;
    named.unexpanded = parts_->namer.Unexpanded(shown);
    named.newName = parts_->namer.Expand(file, shown, named.unexpanded);
    named.sameName = named.newName == shown;
    named.target = named.sameName ? file.raw : platform::FileName::TextToName(named.newName);
    named.seriesTaken = parts_->namer.SeriesTaken();
    named.messages = parts_->collected.Take();
    named.identityRead = context_.tokens.TakeReadIdentity(renamer_.Folder(), file, &named.identity);
  }
  // A file whose name uses no date is read only for the preview, which
  // shows no message; the batch must not show one either.
  if (withDateSources_) named.dateSource = context_.tokens.DateSourceText(renamer_.Folder(), file);
  parts_->collected.Take();
  named.seriesAfter = parts_->box.Text();
  return named;
}

BatchNaming NameBatch(const RenameContext& context, const FileRenamer& renamer,
                      const std::vector<platform::FileName>& files, const QString& base, bool randomSeries,
                      bool withDateSources, RandomSeriesPool::RandomSource random) {
  BatchNaming naming{renamer.Folder(), base, context.view.SeriesText(), {}, {}};
  BatchNames names(context, renamer, files, base, randomSeries, withDateSources, std::move(random));
  naming.files.reserve(files.size());
  for (const platform::FileName& file : files) naming.files.push_back(names.Next(file));
  naming.seriesAtEnd = names.SeriesText();
  return naming;
}

}  // namespace renvale::core
