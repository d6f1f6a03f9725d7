#include "shell/ManTempDialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/AppPaths.h"
#include "platform/widgets/HelpWindow.h"
#include "shell/ButtonTexts.h"
#include "shell/MainWindowUi.h"

namespace renvale::shell {
namespace {

QPushButton* NamedButton(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAccessibleName(caption);
  button->setAutoDefault(false);
  return button;
}

QLabel* WrappedLabel(QWidget* parent, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  return label;
}

}  // namespace

ManTempDialog::ManTempDialog(MainWindowUi& ui, core::SettingsRecord& settings, platform::FileSystem& fs,
                             platform::MessagePort& messages, const QString& templateFolder, QWidget* parent)
    : QDialog(parent), ui_(ui), settings_(settings), manager_(fs, messages, templateFolder) {
  setObjectName(QStringLiteral("ManTemp"));
  setWindowTitle(texts::kManTempCaption);
  setAccessibleName(texts::kManTempCaption);
  BuildControls();
}

void ManTempDialog::Run(MainWindowUi& ui, core::SettingsRecord& settings, platform::FileSystem& fs,
                        platform::MessagePort& messages, core::OperationRecorder* recorder, QWidget* parent) {
  ManTempDialog dialog(ui, settings, fs, messages, platform::DataFolder(), parent);
  dialog.manager_.SetRecorder(recorder);
  dialog.exec();
}

void ManTempDialog::BuildControls() {
  auto* list = new QVBoxLayout;
  auto* listLabel = new QLabel(texts::kExistingTemplates, this);
  File1 = new QListWidget(this);
  File1->setObjectName(QStringLiteral("File1"));
  File1->setAccessibleName(texts::kExistingTemplates);
  File1->setSelectionMode(QAbstractItemView::SingleSelection);
  listLabel->setBuddy(File1);
  list->addWidget(listLabel);
  list->addWidget(File1, 1);

  auto* groups = new QVBoxLayout;
  groups->addWidget(BuildGroup("Frame1", texts::kSaveGroup, texts::kSaveHint, Text1, "Text1", saveButton_,
                               "cmdSave", texts::kSaveButton));
  groups->addWidget(BuildGroup("Frame2", texts::kOpenGroup, texts::kOpenHint, Text2, "Text2", openButton_,
                               "cmdOpen", texts::kOpenButton));
  groups->addWidget(BuildGroup("Frame3", texts::kDeleteGroup, texts::kDeleteHint, Text3, "Text3",
                               deleteButton_, "cmdDelete", texts::kDeleteButton));
  // Open and Delete act on the list's selection; their boxes only show it.
  Text2->setReadOnly(true);
  Text3->setReadOnly(true);

  auto* buttons = new QHBoxLayout;
  QPushButton* done = NamedButton(this, "cmdDone", texts::kDoneButton);
  QPushButton* help = NamedButton(this, "cmdHelp", texts::kHelpButton);
  platform::AttachHelp(this, help, platform::HelpTopic::Templates);
  buttons->addStretch(1);
  buttons->addWidget(done);
  buttons->addWidget(help);

  auto* panes = new QHBoxLayout;
  panes->addLayout(list, 1);
  panes->addLayout(groups, 2);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(panes, 1);
  layout->addLayout(buttons);

  connect(File1, &QListWidget::itemSelectionChanged, this, &ManTempDialog::OnListSelection);
  connect(saveButton_, &QPushButton::clicked, this, &ManTempDialog::OnSave);
  connect(openButton_, &QPushButton::clicked, this, &ManTempDialog::OnOpen);
  connect(deleteButton_, &QPushButton::clicked, this, &ManTempDialog::OnDelete);
  connect(done, &QPushButton::clicked, this, &QDialog::accept);
}

QWidget* ManTempDialog::BuildGroup(const char* objectName, const QString& title, const QString& hint,
                                   QLineEdit*& box, const char* boxName, QPushButton*& button,
                                   const char* buttonName, const QString& caption) {
  auto* group = new QGroupBox(title, this);
  group->setObjectName(QString::fromLatin1(objectName));
  group->setAccessibleName(title);
  auto* layout = new QVBoxLayout(group);
  layout->addWidget(WrappedLabel(group, hint));
  auto* row = new QHBoxLayout;
  box = new QLineEdit(group);
  box->setObjectName(QString::fromLatin1(boxName));
  box->setAccessibleName(title);
  box->setAccessibleDescription(hint);
  button = NamedButton(group, buttonName, caption);
  row->addWidget(box, 1);
  row->addWidget(button);
  layout->addLayout(row);
  return group;
}

// Each opening starts afresh. Done on show rather than on every activation:
// the dialog is activated again whenever one of its own messages closes,
// which must not wipe what the user typed.
void ManTempDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (const QScreen* screen = this->screen()) move(screen->availableGeometry().center() - rect().center());
  Text1->setText(texts::kNewTemplateName);
  Text2->clear();
  Text3->clear();
  RefreshList();
}

void ManTempDialog::RefreshList() {
  listed_ = manager_.List();
  File1->clear();
  for (const platform::FileName& name : listed_) File1->addItem(name.Display());
}

void ManTempDialog::OnListSelection() {
  const std::optional<platform::FileName> selected = SelectedTemplate();
  if (!selected) return;
  for (QLineEdit* box : {Text1, Text2, Text3}) box->setText(selected->Display());
}

std::optional<platform::FileName> ManTempDialog::SelectedTemplate() const {
  const QList<QListWidgetItem*> items = File1->selectedItems();
  if (items.isEmpty()) return std::nullopt;
  const int row = File1->row(items.first());
  if (row < 0 || static_cast<size_t>(row) >= listed_.size()) return std::nullopt;
  return listed_[static_cast<size_t>(row)];
}

void ManTempDialog::OnSave() {
  TemplateManager::Captions captions;
  for (size_t i = 0; i < captions.size(); ++i) captions[i] = ui_.Command1[i]->text();
  if (manager_.Save(Text1->text(), listed_, captions)) RefreshList();
}

void ManTempDialog::OnOpen() {
  manager_.Open(SelectedTemplate(), [this](int position, const QString& caption) { ApplyCaption(position, caption); });
}

void ManTempDialog::OnDelete() {
  if (!manager_.Delete(SelectedTemplate())) return;
  for (QLineEdit* box : {Text1, Text2, Text3}) box->clear();
  RefreshList();
}

void ManTempDialog::ApplyCaption(int position, const QString& caption) {
  ui_.Command1[static_cast<size_t>(position)]->setText(caption);
  settings_.customCaptions[static_cast<size_t>(position)] = caption;
}

}  // namespace renvale::shell
