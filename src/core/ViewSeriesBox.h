#pragma once

#include "core/RenameView.h"
#include "core/SeriesBox.h"

namespace renvale::core {

// The series counter's view of the "Next Series #:" box, read and written
// through the main window.
class ViewSeriesBox : public SeriesBox {
 public:
  explicit ViewSeriesBox(RenameView& view) : view_(view) {}
  QString Text() const override { return view_.SeriesText(); }
  void SetText(const QString& text) override { view_.SetSeriesText(text); }

 private:
  RenameView& view_;
};

}  // namespace renvale::core
