#include "shell/MainWindowUi.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>

#include "shell/BrowsePane.h"
#include "shell/ShellTexts.h"

namespace renvale::shell {
namespace {

// A control that shows its caption is named by it for screen readers, and
// keeps being named by whatever it shows later: only a control that shows
// no text (a slider) gets its caption as a fixed accessible name.
template <typename Widget>
Widget* Make(QWidget* parent, const char* objectName, const QString& caption = {}) {
  auto* widget = new Widget(parent);
  widget->setObjectName(QString::fromLatin1(objectName));
  if constexpr (requires { widget->setText(caption); }) {
    if (!caption.isEmpty()) widget->setText(caption);
  } else {
    widget->setAccessibleName(caption);
  }
  return widget;
}

QPushButton* Button(QWidget* parent, const char* objectName, const QString& caption) {
  auto* button = Make<QPushButton>(parent, objectName, caption);
  button->setAutoDefault(false);
  return button;
}

// A text box with the label in front of it; the label names the box for
// screen readers.
QLineEdit* LabelledBox(QWidget* parent, QLayout* layout, const char* objectName, const QString& caption) {
  auto* label = new QLabel(caption, parent);
  auto* box = Make<QLineEdit>(parent, objectName);
  box->setAccessibleName(caption);
  label->setBuddy(box);
  layout->addWidget(label);
  layout->addWidget(box);
  return box;
}

QAction* Action(QMenu* menu, const char* objectName, const QString& caption) {
  QAction* action = menu->addAction(caption);
  action->setObjectName(QString::fromLatin1(objectName));
  return action;
}

}  // namespace

void MainWindowUi::Setup(QMainWindow* window) {
  window->setObjectName(QStringLiteral("main"));
  window->setWindowTitle(QStringLiteral("Renvale"));
  auto* central = new QWidget(window);
  central->setObjectName(QStringLiteral("centralWidget"));
  auto* splitter = new QSplitter(Qt::Horizontal, central);
  splitter->setObjectName(QStringLiteral("mainSplitter"));
  splitter->addWidget(BuildFilePane(splitter));
  auto* right = new QWidget(splitter);
  auto* rightLayout = new QVBoxLayout(right);
  rightLayout->setContentsMargins(0, 0, 0, 0);
  rightLayout->addWidget(BuildComposePane(right));
  rightLayout->addWidget(BuildButtonPane(right));
  rightLayout->addWidget(BuildBatchPane(right));
  rightLayout->addWidget(BuildPreviewPane(right), 1);
  splitter->addWidget(right);
  splitter->setStretchFactor(0, 2);
  splitter->setStretchFactor(1, 3);
  auto* layout = new QHBoxLayout(central);
  layout->addWidget(splitter);
  window->setCentralWidget(central);
  BuildMenus(window);
}

QWidget* MainWindowUi::BuildFilePane(QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  browse = new BrowsePane(pane);
  layout->addWidget(browse);
  fileCountLabel = Make<QLabel>(pane, "FileCount", texts::FilesInFolderLabel(0));
  layout->addWidget(fileCountLabel);
  File1 = Make<QListView>(pane, "File1");
  File1->setAccessibleName(QStringLiteral("Files"));
  File1->setSelectionMode(QAbstractItemView::ExtendedSelection);
  File1->setUniformItemSizes(true);  // keeps huge folders fast to lay out
  File1->setEditTriggers(QAbstractItemView::NoEditTriggers);
  fileCountLabel->setBuddy(File1);
  layout->addWidget(File1, 1);
  auto* row = new QHBoxLayout;
  Command14 = Button(pane, "Command14", QStringLiteral("Select All"));
  CmdRefresh = Button(pane, "CmdRefresh", QStringLiteral("Refresh"));
  row->addWidget(Command14);
  row->addWidget(CmdRefresh);
  layout->addLayout(row);
  return pane;
}

QWidget* MainWindowUi::BuildComposePane(QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  selectionLabel = Make<QLabel>(pane, "SelectedFile", texts::kNoFileSelected);
  QFont bold = selectionLabel->font();
  bold.setBold(true);
  selectionLabel->setFont(bold);
  selectionLabel->setTextFormat(Qt::PlainText);
  layout->addWidget(selectionLabel);
  auto* nameRow = new QHBoxLayout;
  Text1 = LabelledBox(pane, nameRow, "Text1", texts::kNewFilenameCaption);
  layout->addLayout(nameRow);
  auto* insertRow = new QHBoxLayout;
  OrigFN = Button(pane, "OrigFN", QStringLiteral("Orig. Filename"));
  exif = Button(pane, "exif", QStringLiteral("EXIF+"));
  Command5 = Button(pane, "Command5", QStringLiteral("Insert+"));
  Command6 = Button(pane, "Command6", QStringLiteral("(Series #)"));
  for (QWidget* widget : {static_cast<QWidget*>(OrigFN), static_cast<QWidget*>(exif),
                          static_cast<QWidget*>(Command5), static_cast<QWidget*>(Command6)}) {
    insertRow->addWidget(widget);
  }
  Text2 = LabelledBox(pane, insertRow, "Text2", texts::kNextSeriesCaption);
  Text2->setText(QStringLiteral("01"));
  Text2->setMaximumWidth(80);
  // A big batch leaves a number of four digits or more: show it whole.
  Text2->setMinimumWidth(Text2->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 12);
  layout->addLayout(insertRow);
  auto* actionRow = new QHBoxLayout;
  Command7 = Button(pane, "Command7", QStringLiteral("Revert"));
  Command8 = Button(pane, "Command8", QStringLiteral("Clear"));
  Command2 = Button(pane, "Command2", QStringLiteral("Rename / Done"));
  Command4 = Button(pane, "Command4", QStringLiteral("DEL"));
  Command13 = Button(pane, "Command13", QStringLiteral("Transfer"));
  for (QPushButton* button : {Command7, Command8, Command2, Command4, Command13}) actionRow->addWidget(button);
  layout->addLayout(actionRow);
  return pane;
}

QWidget* MainWindowUi::BuildButtonPane(QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* layout = new QGridLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  for (int n = 1; n <= 9; ++n) {
    QPushButton* button = Button(pane, "Command1", QStringLiteral("Custom%1").arg(n));
    button->setProperty("index", n);
    Command1[static_cast<size_t>(n - 1)] = button;
    layout->addWidget(button, (n - 1) / 3, (n - 1) % 3);
  }
  for (int k = 0; k < 3; ++k) {
    QPushButton* button = Button(pane, "Command9", QStringLiteral("Temp%1").arg(k + 1));
    button->setProperty("index", k);
    Command9[static_cast<size_t>(k)] = button;
    layout->addWidget(button, 3, k);
  }
  Command10 = Button(pane, "Command10", QStringLiteral("Filename as Temp+"));
  layout->addWidget(Command10, 4, 0, 1, 3);
  namebutton = Make<QGroupBox>(pane, "namebutton");
  namebutton->setTitle(QStringLiteral("Rename Button"));
  auto* editor = new QHBoxLayout(namebutton);
  Text3 = Make<QLineEdit>(namebutton, "Text3");
  Text3->setAccessibleName(QStringLiteral("Rename Button"));
  Command3 = Button(namebutton, "Command3", QStringLiteral("OK"));
  editor->addWidget(Text3);
  editor->addWidget(Command3);
  namebutton->hide();
  layout->addWidget(namebutton, 5, 0, 1, 3);
  return pane;
}

QWidget* MainWindowUi::BuildBatchPane(QWidget* parent) {
  BatchFrame = Make<QGroupBox>(parent, "BatchFrame");
  BatchFrame->setTitle(texts::kBatchFrameCaption);
  auto* layout = new QGridLayout(BatchFrame);
  auto* hint = Make<QLabel>(BatchFrame, "BatchHint", texts::kBatchHint);
  hint->setWordWrap(true);
  layout->addWidget(hint, 0, 0, 1, 3);
  Command11 = Button(BatchFrame, "Command11", QStringLiteral("Start Batch Renaming"));
  Check1 = Make<QCheckBox>(BatchFrame, "Check1", QStringLiteral("Randomize Series #s"));
  Command12 = Button(BatchFrame, "Command12", QStringLiteral("Help"));
  previewNames = Button(BatchFrame, "PreviewNames", texts::kPreviewNamesButton);
  layout->addWidget(Command11, 1, 0);
  layout->addWidget(Check1, 1, 1);
  layout->addWidget(Command12, 1, 2);
  // Under the button it goes with rather than beside it: a fourth button in
  // that row made the window grow wider each time it entered batch mode.
  layout->addWidget(previewNames, 2, 0);
  auto* note = Make<QLabel>(BatchFrame, "RandomNote", texts::kRandomSeriesNote);
  note->setWordWrap(true);
  note->hide();
  layout->addWidget(note, 3, 0, 1, 3);
  processingLabel = Make<QLabel>(BatchFrame, "Processing", texts::kProcessingFiles);
  processingLabel->hide();
  layout->addWidget(processingLabel, 4, 0, 1, 3);
  ProgressBar1 = Make<QProgressBar>(BatchFrame, "ProgressBar1");
  ProgressBar1->setAccessibleName(QStringLiteral("Batch progress"));
  layout->addWidget(ProgressBar1, 5, 0, 1, 3);
  BatchFrame->hide();
  return BatchFrame;
}

QWidget* MainWindowUi::BuildPreviewPane(QWidget* parent) {
  previewFrame = Make<QGroupBox>(parent, "PreviewFrame");
  previewFrame->setTitle(QStringLiteral("Preview"));
  auto* layout = new QVBoxLayout(previewFrame);
  previewCaption = Make<QLabel>(previewFrame, "PreviewCaption", texts::kNoFileSelected);
  previewCaption->setTextFormat(Qt::PlainText);
  layout->addWidget(previewCaption);
  Gvbox1 = Make<QLabel>(previewFrame, "Gvbox1");
  Gvbox1->setAccessibleName(QStringLiteral("Picture preview"));
  // The picture gives way first when the batch pane needs the room.
  Gvbox1->setMinimumSize(1, 1);
  Gvbox1->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  Gvbox1->setAlignment(Qt::AlignCenter);
  layout->addWidget(Gvbox1, 1);
  layout->addWidget(BuildMediaControls(previewFrame));
  auto* row = new QHBoxLayout;
  ShPrev = Button(previewFrame, "ShPrev", QStringLiteral("Preview"));
  UnSupported = Button(previewFrame, "UnSupported", QStringLiteral("External Preview"));
  row->addWidget(ShPrev);
  row->addWidget(UnSupported);
  layout->addLayout(row);
  return previewFrame;
}

// The player's controls: the buttons and the volume above, the position
// and the times below.
QWidget* MainWindowUi::BuildMediaControls(QWidget* parent) {
  mediaControls = new QWidget(parent);
  mediaControls->setObjectName(QStringLiteral("MoviePlayer1"));
  mediaControls->setAccessibleName(QStringLiteral("Media player"));
  auto* rows = new QVBoxLayout(mediaControls);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* buttons = new QHBoxLayout;
  int index = 0;
  for (const char* caption : {"Play", "Pause", "Stop", "Step", "Step"}) {
    QPushButton* button = Button(mediaControls, "MediaButton", QString::fromLatin1(caption));
    button->setProperty("index", index);
    buttons->addWidget(button);
    MediaButton[static_cast<size_t>(index++)] = button;
  }
  // The two steps share a caption; their arrows and descriptions tell them
  // apart.
  const std::pair<QStyle::StandardPixmap, QString> steps[] = {{QStyle::SP_MediaSeekBackward, texts::kStepBack},
                                                              {QStyle::SP_MediaSeekForward, texts::kStepForward}};
  for (size_t i = 0; i < 2; ++i) {
    QPushButton* step = MediaButton[3 + i];
    step->setIcon(step->style()->standardIcon(steps[i].first));
    step->setToolTip(steps[i].second);
    step->setAccessibleDescription(steps[i].second);
  }
  VolAdj = Make<QSlider>(mediaControls, "VolAdj", texts::kVolume);
  VolAdj->setOrientation(Qt::Horizontal);
  VolAdj->setRange(0, 100);
  VolAdj->setValue(100);
  VolAdj->setToolTip(texts::kVolume);
  VolAdj->setMaximumWidth(VolAdj->fontMetrics().horizontalAdvance(QStringLiteral("Volume")) * 2);
  buttons->addWidget(VolAdj);
  rows->addLayout(buttons);

  auto* position = new QHBoxLayout;
  Slider1 = Make<QSlider>(mediaControls, "Slider1", texts::kPosition);
  Slider1->setOrientation(Qt::Horizontal);
  position->addWidget(Slider1, 1);
  CurTime = Make<QLabel>(mediaControls, "CurTime");
  TotalLength = Make<QLabel>(mediaControls, "TotalLength");
  for (auto [label, tip] : {std::pair{CurTime, texts::kCurrentPosition}, std::pair{TotalLength, texts::kTotalLength}}) {
    label->setTextFormat(Qt::PlainText);
    label->setToolTip(tip);
    label->setAccessibleDescription(tip);
  }
  // Room for the figures as they grow, so that nothing shifts while a file
  // plays.
  CurTime->setMinimumWidth(CurTime->fontMetrics().horizontalAdvance(QStringLiteral("000.00")));
  CurTime->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  TotalLength->setMinimumWidth(TotalLength->fontMetrics().horizontalAdvance(QStringLiteral(" / 000.00")));
  position->setSpacing(0);
  position->addSpacing(6);
  position->addWidget(CurTime);
  position->addWidget(TotalLength);
  rows->addLayout(position);
  mediaControls->setEnabled(false);
  mediaControls->hide();
  return mediaControls;
}

void MainWindowUi::BuildMenus(QMainWindow* window) {
  QMenuBar* bar = window->menuBar();
  QMenu* file = bar->addMenu(QStringLiteral("&File"));
  file->setObjectName(QStringLiteral("FileMenu"));
  refreshAction = Action(file, "mnuRefresh", QStringLiteral("&Refresh Files List"));
  refreshAction->setShortcut(QKeySequence::Refresh);
  file->addSeparator();
  exitAction = Action(file, "mnuExit", QStringLiteral("E&xit"));
  QMenu* edit = bar->addMenu(texts::kEditMenu);
  edit->setObjectName(QStringLiteral("mnuEdit"));
  mnuUndo = Action(edit, "mnuUndo", texts::kUndoNothing);
  mnuUndo->setShortcut(QKeySequence::Undo);
  mnuHistory = Action(edit, "mnuHistory", texts::kHistoryMenu);
  QMenu* tools = bar->addMenu(QStringLiteral("&Tools"));
  tools->setObjectName(QStringLiteral("ToolsMenu"));
  optionsAction = Action(tools, "mnuOptions", QStringLiteral("&Program Options"));
  templatesAction = Action(tools, "mnuTemplates", QStringLiteral("&Manage Templates"));
  FSR = Action(tools, "FSR", QStringLiteral("Filename &Search && Replace"));
  tools->addSeparator();
  MapNet = Action(tools, "MapNet", QStringLiteral("Map &Network Drive"));
  UnMap = Action(tools, "UnMap", QStringLiteral("&Disconnect Network Drive"));
  QMenu* view = bar->addMenu(QStringLiteral("&View"));
  view->setObjectName(QStringLiteral("ViewMenu"));
  vEX = Action(view, "vEX", QStringLiteral("View &EXIF && Other Info (Current File)"));
  previewNamesAction = Action(view, "mnuPreviewNames", texts::kPreviewNamesAction);
  previewNamesAction->setEnabled(false);  // names are previewed for a batch only
  RotIP = Action(view, "RotIP", QStringLiteral("&Rotate Preview 90 degrees"));
  QMenu* help = bar->addMenu(QStringLiteral("&Help"));
  help->setObjectName(QStringLiteral("HelpMenu"));
  const char* helpCaptions[] = {"Help &Contents/Overview", "Help using the &Interface", "Visit Website",
                                "Visit Online Forum", "&About"};
  for (int i = 0; i < 5; ++i) {
    HelpMen[static_cast<size_t>(i)] = Action(help, "HelpMen", QString::fromLatin1(helpCaptions[i]));
    HelpMen[static_cast<size_t>(i)]->setProperty("index", i);
  }
}

}  // namespace renvale::shell
