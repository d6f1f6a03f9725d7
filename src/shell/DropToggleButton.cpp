#include "shell/DropToggleButton.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

namespace renvale::shell {

void DropToggleButton::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void DropToggleButton::dropEvent(QDropEvent* event) {
  if (!event->mimeData()->hasUrls()) return;
  event->acceptProposedAction();
  emit UrlsDropped(event->mimeData()->urls());
}

}  // namespace renvale::shell
