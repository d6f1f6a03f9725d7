#pragma once

#include <QStringList>
#include <algorithm>
#include <functional>

#include "core/RenameSession.h"
#include "core/RenameView.h"
#include "platform/FileSystem.h"

namespace renvale::test {

// The main window as the renames see it, over plain fields; it records what
// the operations did to it.
class FakeRenameView : public core::RenameView {
 public:
  FakeRenameView(platform::FileSystem& fs, core::RenameSession& session) : fs_(fs), session_(session) {}

  QString NewNameText() const override { return newName; }
  void SetNewNameText(const QString& text) override { newName = text; }
  QString SeriesText() const override { return series; }
  void SetSeriesText(const QString& text) override { series = text; }
  bool RandomSeries() const override { return random; }
  std::vector<platform::FileName> SelectedFiles() const override { return selected; }

  void RefreshFileList() override {
    ++refreshes;
    std::vector<QByteArray> names;
    fs_.ListFiles(session_.CurrentFolder, &names);
    std::sort(names.begin(), names.end());
    listed = names;
  }
  bool SelectFileNamed(const QString& name) override {
    for (const QByteArray& entry : listed) {
      if (QString::fromUtf8(entry).compare(name, Qt::CaseInsensitive) != 0) continue;
      reselected = QString::fromUtf8(entry);
      return true;
    }
    return false;
  }
  void LeaveBatchMode() override { ++leftBatch; }
  void SetSelectionLabel(const QString& text) override { labels << text; }
  void ResetPreview(const QString& caption) override { previewCaptions << caption; }
  void PreviewSelected() override { ++previews; }
  void ShowProgress(bool visible) override { progressVisible = visible; }
  void SetProgress(int percent) override { progress.push_back(percent); }
  void ProcessEvents() override {
    ++events;
    busyInEvents = busyInEvents && session_.Busy;
    if (onEvents) onEvents();
  }
  void ShowQuickTip(int tipNumber) override { tips.push_back(tipNumber); }

  QString newName;
  QString series = QStringLiteral("1");
  bool random = false;
  std::vector<platform::FileName> selected;
  std::function<void()> onEvents;

  int refreshes = 0, leftBatch = 0, previews = 0, events = 0;
  bool busyInEvents = true, progressVisible = false;
  std::vector<QByteArray> listed;
  QString reselected;
  QStringList labels, previewCaptions;
  std::vector<int> progress, tips;

 private:
  platform::FileSystem& fs_;
  core::RenameSession& session_;
};

}  // namespace renvale::test
