#pragma once

#include <QString>

namespace renvale::platform {

// Where each Help button and Help menu entry leads. The pages themselves are
// shipped in the program's resources; each topic is one page of them.
enum class HelpTopic { Overview, Interface, BatchRenaming, Options, Templates };

// The page of `topic`, as a location under the help folder (HelpFilePath()).
QString HelpTopicPage(HelpTopic topic);

}  // namespace renvale::platform
