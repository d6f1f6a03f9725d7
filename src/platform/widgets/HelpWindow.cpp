#include "platform/widgets/HelpWindow.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "platform/AppPaths.h"
#include "platform/widgets/HelpWindowTexts.h"

namespace renvale::platform {
namespace {

QUrl PageUrl(HelpTopic topic) { return QUrl(HelpFilePath() + HelpTopicPage(topic)); }

QPushButton* NamedButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(QString::fromLatin1(name));
  return button;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* owner) : QWidget(owner, Qt::Window) {
  LoadHelpPages();
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(texts::kHelpWindowTitle);
  resize(820, 600);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(BuildBar());
  layout->addWidget(BuildPanes(), 1);
  connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::OnPageChanged);
  new QShortcut(QKeySequence::Find, this, [this] {
    findBox_->setFocus();
    findBox_->selectAll();
  });
}

// Back, forward and the search within the page.
QHBoxLayout* HelpWindow::BuildBar() {
  auto* back = NamedButton(this, "cmdBack", texts::kHelpBack);
  auto* forward = NamedButton(this, "cmdForward", texts::kHelpForward);
  auto* findLabel = new QLabel(texts::kHelpFind, this);
  findBox_ = new QLineEdit(this);
  findBox_->setObjectName(QStringLiteral("txtFind"));
  findLabel->setBuddy(findBox_);
  auto* findNext = NamedButton(this, "cmdFindNext", texts::kHelpFindNext);
  notFound_ = new QLabel(texts::kHelpNotFound, this);
  notFound_->setObjectName(QStringLiteral("lblNotFound"));
  notFound_->hide();
  back->setEnabled(false);
  forward->setEnabled(false);

  browser_ = new QTextBrowser(this);
  connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
  connect(forward, &QPushButton::clicked, browser_, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
  connect(findBox_, &QLineEdit::returnPressed, this, &HelpWindow::FindNext);
  connect(findNext, &QPushButton::clicked, this, &HelpWindow::FindNext);
  connect(findBox_, &QLineEdit::textChanged, notFound_, &QLabel::hide);

  auto* bar = new QHBoxLayout;
  for (QWidget* widget : {back, forward}) bar->addWidget(widget);
  for (QWidget* widget : std::initializer_list<QWidget*>{findLabel, findBox_, findNext, notFound_}) {
    bar->addWidget(widget);
  }
  bar->addStretch();
  return bar;
}

// The contents list beside the page.
QSplitter* HelpWindow::BuildPanes() {
  contents_ = new QListWidget(this);
  contents_->setObjectName(QStringLiteral("lstContents"));
  contents_->setAccessibleName(texts::kHelpContents);
  for (HelpTopic topic : kAllHelpTopics) {
    auto* item = new QListWidgetItem(HelpTopicTitle(topic), contents_);
    item->setData(Qt::UserRole, PageUrl(topic));
  }
  const auto open = [this](QListWidgetItem* item) { browser_->setSource(item->data(Qt::UserRole).toUrl()); };
  connect(contents_, &QListWidget::itemClicked, this, open);
  connect(contents_, &QListWidget::itemActivated, this, open);

  browser_->setObjectName(QStringLiteral("txtPage"));
  // Addresses outside the help go to the desktop's browser or mail program.
  browser_->setOpenExternalLinks(true);
  auto* splitter = new QSplitter(this);
  splitter->addWidget(contents_);
  splitter->addWidget(browser_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({200, 620});
  return splitter;
}

void HelpWindow::ShowTopic(HelpTopic topic) { browser_->setSource(PageUrl(topic)); }

QUrl HelpWindow::Page() const { return browser_->source(); }

// Keeps the contents list on the page shown, however it was reached.
void HelpWindow::OnPageChanged(const QUrl& page) {
  const QUrl shown = page.adjusted(QUrl::RemoveFragment);
  for (int row = 0; row < contents_->count(); ++row) {
    if (contents_->item(row)->data(Qt::UserRole).toUrl() != shown) continue;
    contents_->setCurrentRow(row);
    setWindowTitle(texts::kHelpWindowTitle + QStringLiteral(" - ") + contents_->item(row)->text());
    return;
  }
}

// From the cursor on, then once more from the top, so that repeated
// presses go round the page.
void HelpWindow::FindNext() {
  const QString text = findBox_->text();
  if (text.isEmpty()) return;
  bool found = browser_->find(text);
  if (!found) {
    browser_->moveCursor(QTextCursor::Start);
    found = browser_->find(text);
  }
  notFound_->setVisible(!found);
}

void ShowHelp(QWidget* owner, HelpTopic topic) {
  QWidget* window = owner->window();
  auto* help = window->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
  if (help == nullptr) help = new HelpWindow(window);
  help->ShowTopic(topic);
  help->show();
  help->raise();
  help->activateWindow();
}

void AttachHelp(QWidget* window, QAbstractButton* helpButton, HelpTopic topic) {
  if (helpButton != nullptr) {
    helpButton->setEnabled(true);
    QObject::connect(helpButton, &QAbstractButton::clicked, window, [window, topic] { ShowHelp(window, topic); });
  }
  auto* key = new QShortcut(QKeySequence::HelpContents, window);
  key->setObjectName(QStringLiteral("helpKey"));
  QObject::connect(key, &QShortcut::activated, window, [window, topic] { ShowHelp(window, topic); });
}

}  // namespace renvale::platform
