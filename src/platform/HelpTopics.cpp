#include "platform/HelpTopics.h"

namespace renvale::platform {

QString HelpTopicPage(HelpTopic topic) {
  switch (topic) {
    case HelpTopic::Overview: return QStringLiteral("index.html");
    case HelpTopic::Interface: return QStringLiteral("interface.html");
    case HelpTopic::BatchRenaming: return QStringLiteral("batch.html");
    case HelpTopic::Options: return QStringLiteral("options.html");
    case HelpTopic::Templates: return QStringLiteral("templates.html");
  }
  return QStringLiteral("index.html");
}

}  // namespace renvale::platform
