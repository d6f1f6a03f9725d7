#include "shell/ComposeValues.h"

#include "core/ButtonCaptions.h"
#include "platform/FileName.h"

namespace renvale::shell {

ComposeValues::ComposeValues(core::RenameSession& session, const core::SettingsRecord& settings,
                             platform::FileSystem& fs, platform::MessagePort& messages,
                             core::SeriesBox& seriesBox)
    : session_(session), settings_(settings), fs_(fs), messages_(messages), series_(seriesBox, settings) {}

QString ComposeValues::OrigFilename() const {
  return session_.BatchMode ? core::TokenUpper(core::Token::OrigFn) : session_.SelectedBase;
}

QString ComposeValues::Exif(int form) {
  return metadata::ExifInsertValue(SelectedFile(), form, session_.BatchMode, Formats());
}

void ComposeValues::LoadId3ForSelected() {
  const QByteArray& name = session_.SelectedFileName.raw;
  if (!name.toLower().endsWith(".mp3")) {
    id3_ = {};
    return;
  }
  id3_ = metadata::LoadId3Values(fs_, platform::JoinPath(session_.CurrentFolder, name));
}

QString ComposeValues::Id3(core::Token token) const {
  if (session_.BatchMode) return core::TokenUpper(token);
  switch (token) {
    case core::Token::Title: return id3_.title;
    case core::Token::Artist: return id3_.artist;
    case core::Token::Album: return id3_.album;
    case core::Token::Track: return id3_.track;
    default: return {};
  }
}

QString ComposeValues::Series() {
  if (!session_.BatchMode) session_.SeriesUsed = true;
  return series_.InsertionText(session_.BatchMode);
}

QString ComposeValues::Button(const QString& caption) {
  const QString text = core::UnescapeCaption(caption);
  if (session_.BatchMode) return text;
  return core::ExpandButtonTokens(text, [this](core::Token token) { return ButtonTokenValue(token); });
}

QString ComposeValues::ButtonTokenValue(core::Token token) {
  switch (token) {
    case core::Token::OrigFn: return session_.SelectedBase;
    case core::Token::Series: return TakeSeriesNumber();
    default: return metadata::ExifTokenValue(SelectedFile(), core::TokenUpper(token), Formats());
  }
}

QString ComposeValues::TakeSeriesNumber() {
  session_.SeriesUsed = true;
  return series_.TakeSeriesText();
}

metadata::ExifFile ComposeValues::SelectedFile() const {
  return {fs_, messages_, session_.CurrentFolder, session_.SelectedFileName.raw};
}

metadata::ExifDateFormats ComposeValues::Formats() const { return {settings_.exifDate, settings_.exifTime}; }

}  // namespace renvale::shell
