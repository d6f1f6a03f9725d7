#include "platform/HelpTopics.h"

#include <QtGlobal>

// Outside any namespace: the macro declares a function of the global one.
static void InitHelpResource() { Q_INIT_RESOURCE(HelpPages); }

namespace renvale::platform {
namespace {

struct TopicRow {
  HelpTopic topic;
  const char* page;
  const char* title;
};

// In the order the contents list shows them.
constexpr TopicRow kTopics[] = {
    {HelpTopic::Overview, "index.html", "Overview"},
    {HelpTopic::Interface, "interface.html", "The main window"},
    {HelpTopic::BatchRenaming, "batch.html", "Renaming many files at once"},
    {HelpTopic::Options, "options.html", "Program options"},
    {HelpTopic::Templates, "templates.html", "Custom buttons and templates"},
    {HelpTopic::SearchReplace, "searchreplace.html", "Filename search and replace"},
    {HelpTopic::MoveCopy, "movecopy.html", "Moving and copying files"},
    {HelpTopic::NetworkShares, "network.html", "Network shares"},
    {HelpTopic::FileReport, "report.html", "The file information window"},
    {HelpTopic::QuickTips, "quicktips.html", "Quick tips"},
    {HelpTopic::Keyboard, "keyboard.html", "The keyboard"},
};

const TopicRow& RowOf(HelpTopic topic) {
  for (const TopicRow& row : kTopics) {
    if (row.topic == topic) return row;
  }
  return kTopics[0];
}

}  // namespace

QString HelpTopicPage(HelpTopic topic) { return QString::fromLatin1(RowOf(topic).page); }

QString HelpTopicTitle(HelpTopic topic) { return QString::fromLatin1(RowOf(topic).title); }

void LoadHelpPages() {
  static const bool loaded = [] {
    InitHelpResource();
    return true;
  }();
  (void)loaded;
}

}  // namespace renvale::platform
