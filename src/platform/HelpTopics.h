#pragma once

#include <QString>
#include <array>

namespace renvale::platform {

// Where each Help button and Help menu entry leads. The pages themselves are
// shipped in the program's resources; each topic is one page of them.
enum class HelpTopic {
  Overview,
  Interface,
  BatchRenaming,
  Options,
  Templates,
  SearchReplace,
  MoveCopy,
  NetworkShares,
  FileReport,
  QuickTips,
  Keyboard,
};

inline constexpr std::array<HelpTopic, 11> kAllHelpTopics{
    HelpTopic::Overview,      HelpTopic::Interface, HelpTopic::BatchRenaming, HelpTopic::Options,
    HelpTopic::Templates,     HelpTopic::SearchReplace, HelpTopic::MoveCopy, HelpTopic::NetworkShares,
    HelpTopic::FileReport,    HelpTopic::QuickTips, HelpTopic::Keyboard};

// The page of `topic`, as a location under the help folder (HelpFilePath()).
QString HelpTopicPage(HelpTopic topic);

// The page's heading, as the help window's contents list shows it.
QString HelpTopicTitle(HelpTopic topic);

// Makes the pages reachable under ":/help/"; they live in this static
// library, whose resource registration a linker would otherwise drop.
void LoadHelpPages();

}  // namespace renvale::platform
