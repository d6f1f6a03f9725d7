#include "shell/TemplateManager.h"

#include <QFile>
#include <algorithm>

#include "core/CoreTexts.h"
#include "core/FileNameRules.h"
#include "core/NaturalOrder.h"
#include "core/PlanIdentity.h"
#include "core/RecordedOperation.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"
#include "shell/ButtonTexts.h"

namespace renvale::shell {
namespace {

// Nine short captions; anything far larger is not a template.
constexpr qint64 kMaxTemplateBytes = 64 * 1024;

bool IsTemplateName(const QByteArray& name) {
  return name.toLower().endsWith(core::texts::kTemplateExtension.toUtf8());
}

}  // namespace

TemplateManager::TemplateManager(platform::FileSystem& fs, platform::MessagePort& messages, QString folder)
    : fs_(fs), messages_(messages), folder_(QFile::encodeName(folder)) {}

std::vector<platform::FileName> TemplateManager::List() const {
  std::vector<QByteArray> names;
  fs_.ListFiles(folder_, &names);
  std::erase_if(names, [](const QByteArray& name) { return !IsTemplateName(name); });
  std::sort(names.begin(), names.end(), core::NaturalLess);
  std::vector<platform::FileName> listed;
  for (QByteArray& name : names) listed.push_back({std::move(name)});
  return listed;
}

bool TemplateManager::Save(const QString& typedName, const std::vector<platform::FileName>& listed,
                           const Captions& captions) {
  if (typedName.isEmpty()) {
    messages_.Notify(texts::kPleaseEnterFilename);
    return false;
  }
  // Only a name picked from the list (extension and all) is asked about;
  // "Kids" over an existing "Kids.rnt" replaces it without a question.
  const bool listedName = std::any_of(listed.begin(), listed.end(),
                                      [&](const platform::FileName& name) { return name.Display() == typedName; });
  if (listedName && messages_.AskBeforeLoss(texts::kOverwriteTemplate, platform::MessageButtons::YesNo,
                                            platform::MessageIcon::Question,
                                            texts::kFileExistsTitle) != platform::MessageAnswer::Yes) {
    return false;
  }
  // A name no file can have fails the way any file error does: silently.
  if (core::HasInvalidFilenameChars(typedName)) return false;
  const QByteArray path = PathOf(QFile::encodeName(core::TemplateFileName(typedName)));
  if (fs_.WriteWholeFile(path, core::WriteTemplate(captions)) != platform::kNoError) return false;
  messages_.Notify(texts::kTemplateSaved);
  return true;
}

bool TemplateManager::Open(const std::optional<platform::FileName>& selected, const ApplyCaption& apply) {
  if (!selected) {
    messages_.Notify(texts::kChooseFileToOpen);
    return false;
  }
  QByteArray bytes;
  if (fs_.ReadWholeFile(PathOf(selected->raw), kMaxTemplateBytes, &bytes) != platform::kNoError) return false;
  const core::TemplateReadResult read = core::ReadTemplate(bytes);
  for (size_t i = 0; i < read.captions.size(); ++i) apply(static_cast<int>(i), read.captions[i]);
  if (!read.Complete()) return false;
  messages_.Notify(texts::kTemplateApplied);
  return true;
}

bool TemplateManager::Delete(const std::optional<platform::FileName>& selected) {
  if (!selected) {
    messages_.Notify(texts::kChooseTemplateToDelete);
    return false;
  }
  const QString question = texts::kConfirmDeletePrefix + selected->Display() + texts::kConfirmDeleteSuffix;
  if (messages_.Ask(question, platform::MessageButtons::YesNo, platform::MessageIcon::Question,
                    texts::kConfirmDeleteTitle) != platform::MessageAnswer::Yes) {
    return false;
  }
  const QByteArray path = PathOf(selected->raw);
  const core::OperationPlan plan{core::OperationKind::TemplateDelete, folder_, QDateTime::currentDateTimeUtc(),
                                 {{core::StepKind::Trash, path, {}, core::IdentityOf(fs_, path, true)}}};
  const core::RecordedOperation recorded(recorder_, plan);
  if (recorded.Error() != platform::kNoError) {
    messages_.Notify(core::texts::kPlanNotKept.arg(platform::ErrorDescription(recorded.Error())),
                     platform::MessageIcon::Critical);
    return false;
  }
  const bool trashed = fs_.MoveToTrash(path) == platform::kNoError;
  messages_.Notify(trashed ? texts::kTemplateTrashed : texts::kTemplateNotTrashed);
  return true;
}

QByteArray TemplateManager::PathOf(const QByteArray& name) const { return platform::JoinPath(folder_, name); }

}  // namespace renvale::shell
