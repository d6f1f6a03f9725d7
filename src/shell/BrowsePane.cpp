#include "shell/BrowsePane.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

#include "shell/DropToggleButton.h"

namespace renvale::shell {
namespace {

constexpr int kPathRole = Qt::UserRole + 1;

DropToggleButton* MakeToggle(QWidget* parent, const char* name, const QString& caption) {
  auto* toggle = new DropToggleButton(caption, parent);
  toggle->setObjectName(QString::fromLatin1(name));
  toggle->setAcceptDrops(true);
  toggle->setAutoDefault(false);
  return toggle;
}

}  // namespace

BrowsePane::BrowsePane(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("BrowsePane"));
  stack_ = new QStackedWidget(this);
  stack_->addWidget(BuildSimplePane());
  stack_->addWidget(BuildAdvancedPane());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(stack_);
  connect(toggleBrowseS, &QPushButton::clicked, this, &BrowsePane::ToggleClicked);
  connect(toggleBrowseA, &QPushButton::clicked, this, &BrowsePane::ToggleClicked);
  connect(toggleBrowseS, &DropToggleButton::UrlsDropped, this, &BrowsePane::UrlsDropped);
  connect(toggleBrowseA, &DropToggleButton::UrlsDropped, this, &BrowsePane::UrlsDropped);
  connect(Command15, &QPushButton::clicked, this, &BrowsePane::ChooseFolderClicked);
  connect(Drive1, &QComboBox::activated, this, [this](int index) {
    if (!filling_) emit DriveChosen(index);
  });
  connect(Dir1, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) { OpenRow(Dir1->row(item)); });
}

QWidget* BrowsePane::BuildSimplePane() {
  auto* pane = new QWidget(this);
  pane->setObjectName(QStringLiteral("SimpleBrowse"));
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* top = new QHBoxLayout;
  auto* driveLabel = new QLabel(QStringLiteral("Drive:"), pane);
  Drive1 = new QComboBox(pane);
  Drive1->setObjectName(QStringLiteral("Drive1"));
  Drive1->setAccessibleName(QStringLiteral("Drive"));
  Drive1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  Drive1->setMinimumContentsLength(14);
  driveLabel->setBuddy(Drive1);
  toggleBrowseS = MakeToggle(pane, "toggleBrowseS", QStringLiteral("Advanced >>"));
  top->addWidget(driveLabel);
  top->addWidget(Drive1, 1);
  top->addWidget(toggleBrowseS);
  layout->addLayout(top);
  Dir1 = new QListWidget(pane);
  Dir1->setObjectName(QStringLiteral("Dir1"));
  Dir1->setAccessibleName(QStringLiteral("Folders"));
  Dir1->setMinimumHeight(120);
  layout->addWidget(Dir1);
  return pane;
}

QWidget* BrowsePane::BuildAdvancedPane() {
  auto* pane = new QWidget(this);
  pane->setObjectName(QStringLiteral("AdvancedBrowse"));
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(QStringLiteral("Current Folder:"), pane);
  CurFold = new QLineEdit(pane);
  CurFold->setObjectName(QStringLiteral("CurFold"));
  CurFold->setAccessibleName(QStringLiteral("Current Folder:"));
  CurFold->setReadOnly(true);
  label->setBuddy(CurFold);
  auto* row = new QHBoxLayout;
  Command15 = new QPushButton(QStringLiteral("Choose Folder..."), pane);
  Command15->setObjectName(QStringLiteral("Command15"));
  Command15->setAccessibleName(QStringLiteral("Choose Folder..."));
  Command15->setAutoDefault(false);
  toggleBrowseA = MakeToggle(pane, "toggleBrowseA", QStringLiteral("<< Simple"));
  row->addWidget(Command15);
  row->addStretch(1);
  row->addWidget(toggleBrowseA);
  layout->addWidget(label);
  layout->addWidget(CurFold);
  layout->addLayout(row);
  layout->addStretch(1);
  return pane;
}

void BrowsePane::ShowMode(int mode) { stack_->setCurrentIndex(mode == 1 ? 1 : 0); }

int BrowsePane::Mode() const { return stack_->currentIndex(); }

void BrowsePane::SetDrives(const QStringList& labels, int current) {
  filling_ = true;
  Drive1->clear();
  Drive1->addItems(labels);
  Drive1->setCurrentIndex(current);
  filling_ = false;
}

void BrowsePane::SelectDrive(int index) {
  filling_ = true;
  Drive1->setCurrentIndex(index);
  filling_ = false;
}

void BrowsePane::SetFolderRows(const std::vector<FolderRow>& rows) {
  Dir1->clear();
  const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
  const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
  for (const FolderRow& row : rows) {
    auto* item = new QListWidgetItem(QString(row.depth * 2, QLatin1Char(' ')) + row.label, Dir1);
    item->setData(kPathRole, row.path);
    item->setIcon(row.path.isEmpty() || row.current || row.depth == 0 ? open : closed);
    if (row.current) Dir1->setCurrentItem(item);
  }
}

void BrowsePane::SetFolderText(const QString& folder) { CurFold->setText(folder); }

void BrowsePane::OpenRow(int row) {
  QListWidgetItem* item = Dir1->item(row);
  if (item != nullptr) emit FolderOpened(item->data(kPathRole).toByteArray());
}

}  // namespace renvale::shell
