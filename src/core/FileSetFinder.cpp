#include "core/FileSetFinder.h"

namespace renvale::core {

namespace {

const QByteArray kThm = QByteArrayLiteral(".thm");
const QByteArray kCrw = QByteArrayLiteral(".crw");
const QByteArray kXmp = QByteArrayLiteral(".xmp");

// Names are raw bytes; the extension starts at the last dot, as everywhere.
QByteArray BaseOf(const QByteArray& name) {
  const qsizetype dot = name.lastIndexOf('.');
  return dot < 0 ? name : name.left(dot);
}

QByteArray ExtensionOf(const QByteArray& name) {
  const qsizetype dot = name.lastIndexOf('.');
  return dot < 0 ? QByteArray() : name.mid(dot);
}

bool HasExtension(QByteArrayView name, const QByteArray& lowerExtension) {
  return AsciiFoldedName::EndsWith(name, lowerExtension);
}

// A THM is a thumbnail, and a sidecar describes another file: neither
// takes sidecars of its own.
bool CanTakeSidecars(QByteArrayView name) {
  return !HasExtension(name, kThm) && !HasExtension(name, kXmp);
}

void AddPair(const QByteArray& from, const QByteArray& to, std::vector<NamePair>* pairs) {
  if (from == to) return;
  for (const NamePair& pair : *pairs) {
    if (pair.from == from) return;
  }
  pairs->push_back(NamePair{from, to});
}

}  // namespace

FileSetFinder::FileSetFinder(const FolderIndex& index, const std::vector<platform::FileName>& selection)
    : index_(index) {
  selected_.reserve(static_cast<qsizetype>(selection.size()));
  selectedFolded_.reserve(selection.size());
  for (const platform::FileName& file : selection) {
    selected_.insert(file.raw);
    selectedFolded_.insert(file.raw);
    if (CanTakeSidecars(file.raw)) {
      selectedHeadNames_.insert(file.raw);
      selectedHeadBases_.insert(BaseOf(file.raw));
    }
  }
}

std::vector<NamePair> FileSetFinder::Companions(const QByteArray& head, const QByteArray& newHead) const {
  std::vector<NamePair> pairs;
  const QByteArray newBase = BaseOf(newHead);
  if (HasExtension(head, kCrw)) AddThm(head, newBase, &pairs);
  if (CanTakeSidecars(head)) AddSidecars(head, newHead, &pairs);
  return pairs;
}

void FileSetFinder::AddThm(const QByteArray& head, const QByteArray& newBase,
                           std::vector<NamePair>* pairs) const {
  for (const QByteArray& thm : index_.Spellings(BaseOf(head) + kThm)) {
    if (selected_.contains(thm)) AddPair(thm, newBase + ExtensionOf(thm), pairs);
  }
}

void FileSetFinder::AddSidecars(const QByteArray& head, const QByteArray& newHead,
                                std::vector<NamePair>* pairs) const {
  // "Name.CR2.xmp" first: with a head lacking an extension both spellings
  // are the same file and this one keeps the head's full new name.
  for (const QByteArray& sidecar : index_.Spellings(head + kXmp)) {
    AddPair(sidecar, newHead + sidecar.right(kXmp.size()), pairs);
  }
  for (const QByteArray& sidecar : index_.Spellings(BaseOf(head) + kXmp)) {
    if (sidecar != head) AddPair(sidecar, BaseOf(newHead) + ExtensionOf(sidecar), pairs);
  }
}

bool FileSetFinder::TravelsWithSelectedHead(const QByteArray& name) const {
  if (HasExtension(name, kThm)) return selectedFolded_.contains(BaseOf(name) + kCrw);
  if (!HasExtension(name, kXmp)) return false;
  const QByteArrayView described = QByteArrayView(name).chopped(kXmp.size());
  return selectedHeadNames_.contains(described) || selectedHeadBases_.contains(described);
}

}  // namespace renvale::core
