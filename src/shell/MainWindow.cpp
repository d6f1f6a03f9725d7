#include "shell/MainWindow.h"

#include "shell/EditMenu.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QStatusBar>
#include <QWindow>
#include <algorithm>

#include "core/BatchPreview.h"
#include "core/BatchRename.h"
#include "core/FileSelection.h"
#include "core/IndividualRename.h"
#include "core/FolderListing.h"
#include "core/NaturalOrder.h"
#include "core/SeriesCounter.h"
#include "core/SettingsStore.h"
#include "core/WindowPlacement.h"
#include "fileops/DeleteToTrash.h"
#include "platform/AppPaths.h"
#include "platform/ErrorNumbers.h"
#include "platform/FileSystem.h"
#include "platform/MessagePort.h"
#include "platform/widgets/DesktopLinks.h"
#include "platform/widgets/HelpWindow.h"
#include "platform/widgets/WindowSystem.h"
#include "shell/AboutDialog.h"
#include "shell/BrowsePane.h"
#include "shell/BuildInfo.h"
#include "shell/ButtonEditor.h"
#include "shell/ComposeController.h"
#include "shell/FilenameAsTemp.h"
#include "shell/ManTempDialog.h"
#include "shell/MapDriveL.h"
#include "shell/DisDrive.h"
#include "shell/MoveFilesDialog.h"
#include "shell/NamePreviewDialog.h"
#include "shell/OptionsDialog.h"
#include "shell/SandR.h"
#include "fileops/MetadataTokenSource.h"
#include "shell/NamePreviewDialog.h"
#include "shell/PreviewPane.h"
#include "shell/FileListModel.h"
#include "shell/FolderBrowsing.h"
#include "shell/QuickTipOffer.h"
#include "shell/SeriesLineEdit.h"
#include "shell/ShellTexts.h"
#include "shell/StartPath.h"
#include "shell/ToolTipTable.h"
#include "shell/ViewExifDialog.h"

namespace renvale::shell {
namespace {

constexpr int kWelcomeTip = 1;
constexpr int kNewNameTip = 13;
constexpr int kSeriesBoxTip = 14;
constexpr int kTipDelayMs = 1500;

double LogicalDpi(const QWidget* widget) {
  const QScreen* screen = widget->screen();
  return screen != nullptr ? screen->logicalDotsPerInchX() : 96.0;
}

core::TwipSize ScreenTwips(const QWidget* widget) {
  const QScreen* screen = widget->screen();
  const QSize pixels = screen != nullptr ? screen->geometry().size() : QSize(1024, 768);
  const double dpi = LogicalDpi(widget);
  return {core::PixelsToTwips(pixels.width(), dpi), core::PixelsToTwips(pixels.height(), dpi)};
}

void SetupOneShot(QTimer& timer, const char* name) {
  timer.setObjectName(QString::fromLatin1(name));
  timer.setSingleShot(true);
  timer.setInterval(kTipDelayMs);
}

}  // namespace

MainWindow::MainWindow(MainWindowServices services, QWidget* parent)
    : QMainWindow(parent),
      services_(std::move(services)),
      renameView_(*this),
      optionsHost_(*this, renameView_) {
  ui_.Setup(this);
  files_ = new FileListModel(this);
  ui_.File1->setModel(files_);
  preview_ = new PreviewPane(ui_, session_, settings_, services_.fs, services_.messages, this);
  SetupOneShot(FNDelay, "FNDelay");
  SetupOneShot(SerDelay, "SerDelay");
  SetupOneShot(Timer1, "Timer1");
  Timer1.setInterval(0);
  ConnectSignals();
  DisableLaterFeatures();
  ConnectHelp();
  BuildComposeControllers();
  ConnectRenameButtons();
  editMenu_ = new EditMenu(
      ui_, services_.journal, services_.fs, services_.messages, [this] { RefreshFileList(); },
      [this] { return session_.Busy; }, this);
  qApp->installEventFilter(this);
}

MainWindow::~MainWindow() { qApp->removeEventFilter(this); }

void MainWindow::Start(const QByteArray& startPath) {
  const double dpi = LogicalDpi(this);
  const core::TwipRect design = core::DesignPlacement(ScreenTwips(this));
  setGeometry(core::TwipsToPixels(design.left, dpi), core::TwipsToPixels(design.top, dpi),
              core::TwipsToPixels(design.width, dpi), core::TwipsToPixels(design.height, dpi));
  session_.SelectedExt.clear();
  session_.HelpFilePath = platform::HelpFilePath();
  ui_.ProgressBar1->setRange(0, 100);
  for (QPushButton* button : ui_.Command1) button->setEnabled(true);
  for (QPushButton* button : ui_.Command9) button->setEnabled(true);
  baseFont_ = font();
  baseSize_ = size();
  QApplication::processEvents();
  core::SettingsStore(services_.settings).LoadSettings(settings_);
  startPath_ = startPath;
  if (!startPath.isEmpty()) startPlace_ = ResolveStartPath(services_.fs, startPath);
  ApplyLoadedSettings();
  options_ = new OptionsDialog(settings_, services_.settings, services_.messages, optionsHost_, this);
  FinishStartPath();
  Timer1.start();
  // Asked once the window shows, over it.
  QTimer::singleShot(0, editMenu_, &EditMenu::CheckUnfinished);
}

void MainWindow::ApplyLoadedSettings() {
  ApplyBrowseMode(settings_.browseMode);
  ApplyPlacement();
  ApplyFileFilter(settings_.fileFilter);
  ChangeFolder(StartFolder());
  ApplyBrowseMode(settings_.browseMode);
  for (size_t n = 0; n < ui_.Command1.size(); ++n) ui_.Command1[n]->setText(settings_.customCaptions[n]);
  ApplyToolTips(settings_.toolTips);
  SeriesLineEdit seriesBox(*ui_.Text2);
  core::SeriesCounter(seriesBox, settings_).ReformatSeriesBox();
  QApplication::processEvents();
}

void MainWindow::ApplyPlacement() {
  const double dpi = LogicalDpi(this);
  const QRect now = geometry();
  const core::TwipRect current{core::PixelsToTwips(now.x(), dpi), core::PixelsToTwips(now.y(), dpi),
                               core::PixelsToTwips(now.width(), dpi), core::PixelsToTwips(now.height(), dpi)};
  const core::StoredPlacement stored{settings_.windowTop, settings_.windowLeft, settings_.windowHeight,
                                     settings_.windowWidth};
  const core::TwipRect placed = core::ApplyStoredPlacement(stored, current, ScreenTwips(this));
  if (platform::WindowPositionIsHonoured()) {
    move(core::TwipsToPixels(placed.left, dpi), core::TwipsToPixels(placed.top, dpi));
  }
  resize(core::TwipsToPixels(placed.width, dpi), core::TwipsToPixels(placed.height, dpi));
}

// The one argument wins over "Last Folder" without changing it; "Last
// Folder" is saved at the end as usual.
QByteArray MainWindow::StartFolder() {
  if (!startPlace_.folder.isEmpty()) return startPlace_.folder;
  const QByteArray remembered = platform::FileName::TextToName(settings_.lastFolder);
  return remembered.isEmpty() ? services_.startFolder() : NearestExistingFolder(services_.fs, remembered);
}

// An argument that cannot be opened is told in the status line: a dialog
// before the window is even up would only be in the way.
void MainWindow::FinishStartPath() {
  if (!startPath_.isEmpty() && startPlace_.folder.isEmpty()) {
    statusBar()->showMessage(texts::StartPathUnaccessable(platform::FileName{startPath_}.Display()));
  }
  for (int row = 0; row < files_->Count() && !startPlace_.file.isEmpty(); ++row) {
    if (files_->FileAt(row).raw != startPlace_.file) continue;
    ui_.File1->selectionModel()->setCurrentIndex(files_->index(row), QItemSelectionModel::ClearAndSelect);
    ui_.File1->scrollTo(files_->index(row));
    break;
  }
}

void MainWindow::ConnectSignals() {
  connect(ui_.File1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &MainWindow::OnSelectionChanged);
  connect(ui_.File1->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &MainWindow::OnSelectionChanged);
  connect(ui_.Command14, &QPushButton::clicked, this, &MainWindow::SelectAll);
  connect(ui_.CmdRefresh, &QPushButton::clicked, this, &MainWindow::RefreshFileList);
  connect(ui_.refreshAction, &QAction::triggered, this, &MainWindow::RefreshFileList);
  connect(ui_.exitAction, &QAction::triggered, this, &MainWindow::Shutdown);
  connect(ui_.browse, &BrowsePane::ToggleClicked, this, [this] { ApplyBrowseMode(1 - settings_.browseMode); });
  connect(ui_.browse, &BrowsePane::DriveChosen, this, &MainWindow::OnDriveChosen);
  connect(ui_.browse, &BrowsePane::FolderOpened, this, &MainWindow::OnFolderOpened);
  connect(ui_.browse, &BrowsePane::ChooseFolderClicked, this, &MainWindow::OnChooseFolder);
  connect(ui_.browse, &BrowsePane::UrlsDropped, this, &MainWindow::OnUrlsDropped);
  connect(ui_.vEX, &QAction::triggered, this, &MainWindow::ShowFileReport);
  connect(ui_.optionsAction, &QAction::triggered, this, [this] {
    if (options_ != nullptr) options_->Open();
  });
  connect(&FNDelay, &QTimer::timeout, this, [this] { services_.tips.ShowQuickTip(kNewNameTip); });
  connect(&SerDelay, &QTimer::timeout, this, [this] { services_.tips.ShowQuickTip(kSeriesBoxTip); });
  // Once the window is up, the file list takes the keyboard so that arrow
  // keys and Ctrl+A work at once.
  connect(&Timer1, &QTimer::timeout, this, [this] { ui_.File1->setFocus(); });
}

// Each controller connects and enables the controls it makes work.
void MainWindow::BuildComposeControllers() {
  new ComposeController(ui_, session_, settings_,
                        {services_.fs, services_.messages, services_.tips, [this] { ShowFileReport(); }}, this);
  new ButtonEditor(ui_, settings_, services_.messages, this);
  new FilenameAsTemp(ui_, session_, services_.messages, services_.tips, this);
  connect(ui_.templatesAction, &QAction::triggered, this, [this] {
    ManTempDialog::Run(ui_, settings_, services_.fs, services_.messages, services_.journal, this);
  });
  ui_.templatesAction->setEnabled(true);
}

// Each operation gets its own token source, so values read from a file
// never outlive the operation that read them.
template <typename Operation, typename Action>
void MainWindow::RunRename(Action action) {
  fileops::MetadataTokenSource tokens(services_.fs, services_.messages, settings_);
  const core::RenameContext context{
      session_, settings_, renameView_, services_.messages, services_.fs, tokens, services_.journal};
  Operation operation(context);
  action(operation);
}

void MainWindow::ConnectRenameButtons() {
  connect(ui_.Command2, &QPushButton::clicked, this,
          [this] { RunRename<core::IndividualRename>([](auto& rename) { rename.RenameSelectedFile(); }); });
  connect(ui_.Command7, &QPushButton::clicked, this,
          [this] { RunRename<core::IndividualRename>([](auto& rename) { rename.RevertNewName(); }); });
  connect(ui_.Command8, &QPushButton::clicked, this, [this] {
    RunRename<core::IndividualRename>([](auto& rename) { rename.ClearNewName(); });
    ui_.Text1->setFocus();  // the person clears the box to type into it
  });
  connect(ui_.Command11, &QPushButton::clicked, this,
          [this] { RunRename<core::BatchRename>([](auto& batch) { batch.StartBatchRename(); }); });
  connect(ui_.previewNames, &QPushButton::clicked, this, &MainWindow::PreviewNewNames);
  connect(ui_.previewNamesAction, &QAction::triggered, this, &MainWindow::PreviewNewNames);
  connect(ui_.Command4, &QPushButton::clicked, this,
          [this] { RunRename<fileops::DeleteToTrash>([](auto& del) { del.DeleteSelected(); }); });
  connect(ui_.FSR, &QAction::triggered, this, [this] {
    fileops::MetadataTokenSource tokens(services_.fs, services_.messages, settings_);
    SandR::Open({session_, settings_, renameView_, services_.messages, services_.fs, tokens, services_.journal},
                this);
  });
  connect(ui_.Command13, &QPushButton::clicked, this, [this] {
    MoveFilesDialog::Run({settings_, services_.fs, services_.messages, services_.pickFolder, renameView_,
                          session_.CurrentFolder, services_.journal},
                         FileIsSelected(), this);
  });
  // Random numbers and file sets do not mix well; say so while it is ticked.
  auto* note = findChild<QLabel*>(QStringLiteral("RandomNote"));
  connect(ui_.Check1, &QCheckBox::toggled, note, &QLabel::setVisible);
}

// Controls whose services were not given stay visible but unusable.
void MainWindow::DisableLaterFeatures() {
  for (QAction* action : {ui_.MapNet, ui_.UnMap}) {
    action->setEnabled(false);
  }
}

void MainWindow::UseNetworkShares(platform::NetworkShares& shares) {
  connect(ui_.MapNet, &QAction::triggered, this, [this, &shares] {
    MapDriveL::Run({shares, services_.messages, services_.tips, services_.pickFolder}, this);
    FillDriveList();
  });
  connect(ui_.UnMap, &QAction::triggered, this, [this, &shares] {
    if (DisDrive::Run(shares, services_.messages, this)) LeaveFolderIfGone();
  });
  for (QAction* action : {ui_.MapNet, ui_.UnMap}) action->setEnabled(true);
}

// A disconnected share takes its folders with it; the panes move to the
// nearest folder still there.
void MainWindow::LeaveFolderIfGone() {
  std::vector<QByteArray> probe;
  if (services_.fs.ListFolders(session_.CurrentFolder, &probe) == platform::kNoError) {
    FillDriveList();
    return;
  }
  preview_->ReleasePreview();
  ChangeFolder(NearestExistingFolder(services_.fs, session_.CurrentFolder));
}

// The Help menu's entries in their order: two topics, two addresses of the
// project's (each usable only when the build gave one), and About.
void MainWindow::ConnectHelp() {
  platform::AttachHelp(this, nullptr, platform::HelpTopic::Interface);
  connect(ui_.Command12, &QPushButton::clicked, this,
          [this] { platform::ShowHelp(this, platform::HelpTopic::BatchRenaming); });
  connect(ui_.HelpMen[0], &QAction::triggered, this,
          [this] { platform::ShowHelp(this, platform::HelpTopic::Overview); });
  connect(ui_.HelpMen[1], &QAction::triggered, this,
          [this] { platform::ShowHelp(this, platform::HelpTopic::Interface); });
  const QString addresses[] = {QString::fromUtf8(build::kWebsiteUrl), QString::fromUtf8(build::kForumUrl)};
  for (size_t n = 0; n < 2; ++n) {
    ui_.HelpMen[n + 2]->setEnabled(!addresses[n].isEmpty());
    connect(ui_.HelpMen[n + 2], &QAction::triggered, this,
            [address = addresses[n]] { platform::OpenInBrowser(address); });
  }
  connect(ui_.HelpMen[4], &QAction::triggered, this, [this] { AboutDialog::Run(this); });
}

void MainWindow::ApplyBrowseMode(int mode) {
  settings_.browseMode = mode == 1 ? 1 : 0;
  ui_.browse->ShowMode(settings_.browseMode);
  ShowFolderInPanes();
}

void MainWindow::ShowFolderInPanes() {
  if (session_.CurrentFolder.isEmpty()) return;
  ui_.browse->SetFolderText(platform::FileName::NameToText(session_.CurrentFolder));
  if (settings_.browseMode == 1) return;
  std::vector<QByteArray> subfolders;
  services_.fs.ListFolders(session_.CurrentFolder, &subfolders);
  subfolders.erase(std::remove_if(subfolders.begin(), subfolders.end(),
                                  [](const QByteArray& name) { return name.startsWith('.'); }),
                   subfolders.end());
  std::sort(subfolders.begin(), subfolders.end(), core::NaturalLess);
  ui_.browse->SetFolderRows(FolderRowsFor(session_.CurrentFolder, subfolders));
  FillDriveList();
}

void MainWindow::FillDriveList() {
  drives_ = services_.drives();
  QStringList labels;
  for (const platform::Volume& volume : drives_) labels << volume.label;
  const int current = platform::MountList::ContainingVolume(drives_, session_.CurrentFolder);
  ui_.browse->SetDrives(labels, std::max(current, 0));
}

void MainWindow::ChangeFolder(const QByteArray& folder) {
  if (QStatusBar* bar = findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly)) bar->clearMessage();
  session_.CurrentFolder = WithTrailingSlash(folder);
  ShowFolderInPanes();
  RefreshFileList();
}

void MainWindow::ApplyFileFilter(int filter) {
  settings_.fileFilter = filter == 1 ? 1 : 0;
  if (!session_.CurrentFolder.isEmpty()) RefreshFileList();
}

void MainWindow::RefreshFileList() {
  std::vector<platform::FileName> names;
  core::ListFolderFiles(services_.fs, session_.CurrentFolder,
                        settings_.fileFilter == 1 ? core::FileFilter::TypicalImages : core::FileFilter::AllFiles,
                        &names);
  files_->SetFiles(std::move(names));
  ui_.File1->clearSelection();
  session_.SelectedCount = 0;
  ui_.selectionLabel->setText(texts::kNoFileSelected);
  ui_.fileCountLabel->setText(texts::FilesInFolderLabel(files_->Count()));
  // Every operation that changes names reads the list again at its end.
  if (editMenu_ != nullptr) editMenu_->UpdateCaption();
}

void MainWindow::OnSelectionChanged() {
  if (session_.Busy) return;
  int selected = 0;
  for (const QItemSelectionRange& range : ui_.File1->selectionModel()->selection()) selected += range.height();
  const platform::FileName* name = CurrentSelectedFile(selected);
  const core::SelectionView view = core::ApplySelection(session_, selected, name, settings_);
  if (view.mode == core::WindowMode::Batch) {
    SetBatchMode(true);
    QApplication::processEvents();
  } else if (view.mode == core::WindowMode::Individual) {
    SetBatchMode(false);
    ui_.Text1->setText(view.newName);
  }
  ui_.selectionLabel->setText(view.selectionLabel);
  ui_.previewCaption->setText(view.previewCaption);
  if (view.mode == core::WindowMode::Individual) {
    if (settings_.autoPreview) {
      preview_->ShowPreview(session_.SelectedFileName);
    } else {
      preview_->ReleasePreview();
    }
  }
  ui_.fileCountLabel->setText(texts::FilesInFolderLabel(files_->Count()));
}

// The file the selection is about: the only selected one, or with several
// the list's current item (the one last clicked) when it is among them.
const platform::FileName* MainWindow::CurrentSelectedFile(int selectedCount) const {
  if (selectedCount == 0) return nullptr;
  QItemSelectionModel* selection = ui_.File1->selectionModel();
  const QModelIndex current = ui_.File1->currentIndex();
  if (selectedCount > 1 && current.isValid() && selection->isSelected(current)) {
    return &files_->FileAt(current.row());
  }
  const QItemSelection ranges = selection->selection();
  return ranges.isEmpty() ? nullptr : &files_->FileAt(ranges.first().top());
}

void MainWindow::ShowFileReport() {
  const QByteArray selected = FileIsSelected() ? session_.SelectedFileName.raw : QByteArray();
  ViewExifDialog::RunViewCommand(this, services_.fs, services_.messages, session_.CurrentFolder, selected);
}

void MainWindow::SelectAll() {
  if (files_->Count() == 0) {
    services_.messages.Notify(texts::kNoFilesToSelect);
    return;
  }
  const QItemSelection all(files_->index(0), files_->index(files_->Count() - 1));
  ui_.File1->selectionModel()->select(all, QItemSelectionModel::ClearAndSelect);
}

void MainWindow::SetBatchMode(bool on) {
  session_.BatchMode = on;
  ui_.BatchFrame->setVisible(on);
  // With several files selected it would rename only the one clicked last.
  ui_.Command2->setEnabled(!on);
  ui_.previewNamesAction->setEnabled(on);
}

// Works every name out (reading the files as the batch would), shows them,
// and on "Start Batch Renaming" runs the batch with exactly these names.
void MainWindow::PreviewNewNames() {
  if (session_.Busy || !session_.BatchMode) return;
  core::BatchPreview preview;
  {
    fileops::MetadataTokenSource tokens(services_.fs, services_.messages, settings_);
    const core::RenameContext context{session_, settings_, renameView_, services_.messages, services_.fs, tokens};
    QApplication::setOverrideCursor(Qt::WaitCursor);
    preview = core::PreviewBatch(context);
    QApplication::restoreOverrideCursor();
  }
  NamePreviewDialog dialog(this);
  dialog.SetPreview(preview);
  if (dialog.exec() != QDialog::Accepted) return;
  RunRename<core::BatchRename>([&preview](auto& batch) { batch.StartBatchRename(&preview.naming); });
}

bool MainWindow::FileIsSelected() const { return ui_.File1->selectionModel()->hasSelection(); }

void MainWindow::OnDriveChosen(int index) {
  if (index < 0 || static_cast<size_t>(index) >= drives_.size()) return;
  preview_->ReleasePreview();
  std::vector<QByteArray> probe;
  if (services_.fs.ListFolders(drives_[static_cast<size_t>(index)].path, &probe) != platform::kNoError) {
    services_.messages.Notify(texts::kDriveUnaccessableText, platform::MessageIcon::Warning,
                              texts::kDriveUnaccessableTitle);
    FillDriveList();
    return;
  }
  OnFolderOpened(drives_[static_cast<size_t>(index)].path);
}

void MainWindow::OnFolderOpened(const QByteArray& folder) {
  preview_->ReleasePreview();
  ui_.selectionLabel->setText(texts::kNoFileSelected);
  ChangeFolder(folder);
}

void MainWindow::OnChooseFolder() {
  const QString start = platform::FileName::NameToText(session_.CurrentFolder);
  const FolderChoice choice = ResolvePickedFolder(services_.pickFolder(this, texts::kChooseFolderPrompt, start));
  if (!choice.message.isEmpty()) services_.messages.Notify(choice.message);
  if (choice.folder.isEmpty() || choice.folder == session_.CurrentFolder) return;
  ChangeFolder(choice.folder);
}

void MainWindow::OnUrlsDropped(const QList<QUrl>& urls) {
  const FolderChoice choice = ResolveDrop(services_.fs, urls);
  if (!choice.message.isEmpty()) services_.messages.Notify(choice.message);
  if (choice.folder.isEmpty()) return;
  ChangeFolder(choice.folder);
  QApplication::processEvents();
}

void MainWindow::ApplyToolTips(bool on) {
  settings_.toolTips = on;
  for (const ToolTipEntry& entry : kToolTips) {
    const QString text = on ? QString::fromLatin1(entry.text) : QString();
    for (QWidget* widget : findChildren<QWidget*>(QString::fromLatin1(entry.objectName))) widget->setToolTip(text);
  }
}

bool MainWindow::HandleEnter() {
  if (ui_.namebutton->isVisible()) {
    ui_.Command3->click();
    return true;
  }
  if (!FileIsSelected()) return false;
  QPushButton* target = session_.BatchMode ? ui_.Command11 : ui_.Command2;
  if (target->isEnabled()) target->click();
  return true;
}

// The window looks at keys before its controls do, the way a person expects
// Enter to rename from anywhere in the window.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    OfferBoxTips(watched);
    return false;
  }
  if (event->type() != QEvent::KeyPress) return false;
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || widget->window() != this || !isActiveWindow()) return false;
  auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) return HandleEnter();
  // Ctrl+A selects every file, except in a text box, where it selects the text.
  if (key->matches(QKeySequence::SelectAll) && qobject_cast<QLineEdit*>(widget) == nullptr) {
    SelectAll();
    return true;
  }
  return false;
}

// The new-name box and the series box each offer their tip once, a moment
// after they first take the keyboard.
void MainWindow::OfferBoxTips(QObject* watched) {
  if (watched == ui_.Text1 && !fnDelayUsed_) {
    fnDelayUsed_ = true;
    FNDelay.start();
  } else if (watched == ui_.Text2 && !serDelayUsed_) {
    serDelayUsed_ = true;
    SerDelay.start();
  }
}

bool MainWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && session_.FirstActivation) {
    session_.FirstActivation = false;
    services_.tips.ShowQuickTip(kWelcomeTip);
  }
  return QMainWindow::event(event);
}

// Only a resize by the person scales the fonts: a resize the layout forces
// (a pane appearing) must not feed back into larger fonts and a larger window.
void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (settings_.resizeFonts && event->spontaneous()) ScaleFonts();
}

// Fonts grow and shrink with the window, within reason, so that a large
// window on a large screen stays readable.
void MainWindow::ScaleFonts() {
  if (baseSize_.isEmpty() || baseFont_.pointSizeF() <= 0) return;
  const double ratio = std::min(double(width()) / baseSize_.width(), double(height()) / baseSize_.height());
  QFont scaled = baseFont_;
  scaled.setPointSizeF(baseFont_.pointSizeF() * std::clamp(ratio, 0.8, 1.6));
  if (scaled.pointSizeF() != font().pointSizeF()) setFont(scaled);
}

void MainWindow::GatherSettings() {
  const double dpi = LogicalDpi(this);
  const core::StoredPlacement placement = core::PlacementTexts(
      {core::PixelsToTwips(x(), dpi), core::PixelsToTwips(y(), dpi), core::PixelsToTwips(width(), dpi),
       core::PixelsToTwips(height(), dpi)});
  if (platform::WindowPositionIsHonoured()) {
    settings_.windowTop = placement.top;
    settings_.windowLeft = placement.left;
  }
  settings_.windowHeight = placement.height;
  settings_.windowWidth = placement.width;
  settings_.lastFolder = platform::FileName::NameToText(session_.CurrentFolder);
  for (size_t n = 0; n < ui_.Command1.size(); ++n) settings_.customCaptions[n] = ui_.Command1[n]->text();
}

void MainWindow::Shutdown() {
  if (shuttingDown_) return;
  shuttingDown_ = true;
  GatherSettings();
  core::SettingsStore(services_.settings).SaveSettings(settings_, isMinimized());
  QApplication::processEvents();
  QApplication::closeAllWindows();
  QApplication::quit();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  Shutdown();
  event->accept();
}

}  // namespace renvale::shell
