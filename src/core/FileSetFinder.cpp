#include "core/FileSetFinder.h"

#include <QVarLengthArray>

namespace renvale::core {

namespace {

const QByteArray kThm = QByteArrayLiteral(".thm");
const QByteArray kXmp = QByteArrayLiteral(".xmp");
// Canon writes a THM beside each RAW picture and each video clip.
const QByteArray kThmHeads[] = {QByteArrayLiteral(".crw"), QByteArrayLiteral(".avi"), QByteArrayLiteral(".mov")};

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

bool TakesThm(QByteArrayView name) {
  for (const QByteArray& extension : kThmHeads) {
    if (HasExtension(name, extension)) return true;
  }
  return false;
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
    : index_(index), selection_(selection) {}

const FileSetFinder::SelectionSets& FileSetFinder::Selected() const {
  if (selected_) return *selected_;
  SelectionSets& sets = selected_.emplace();
  sets.folded.reserve(selection_.size());
  for (const platform::FileName& file : selection_) {
    sets.folded.insert(file.raw);
    if (CanTakeSidecars(file.raw)) sets.headBases.insert(BaseOf(file.raw));
  }
  return sets;
}

std::vector<QByteArray> FileSetFinder::CompanionSuffixes() { return {kThm, kXmp}; }

std::vector<NamePair> FileSetFinder::Companions(const QByteArray& head, const QByteArray& newHead) const {
  std::vector<NamePair> pairs;
  if (index_.CountedNames() == 0) return pairs;
  if (TakesThm(head)) AddThm(head, BaseOf(newHead), &pairs);
  if (CanTakeSidecars(head)) AddSidecars(head, newHead, &pairs);
  return pairs;
}

void FileSetFinder::AddThm(const QByteArray& head, const QByteArray& newBase,
                           std::vector<NamePair>* pairs) const {
  for (const QByteArray& thm : index_.Spellings(BaseOf(head) + kThm)) AddPair(thm, newBase + ExtensionOf(thm), pairs);
}

// Every picture of a batch asks, and nearly always the answer is none: the
// names asked for are put together on the stack, not on the heap.
void FileSetFinder::AddSidecars(const QByteArray& head, const QByteArray& newHead,
                                std::vector<NamePair>* pairs) const {
  QVarLengthArray<char, 256> asked(head.begin(), head.end());
  asked.append(kXmp.constData(), kXmp.size());
  // "Name.CR2.xmp" first: with a head lacking an extension both spellings
  // are the same file and this one keeps the head's full new name.
  for (const QByteArray& sidecar : index_.Spellings(QByteArrayView(asked.data(), asked.size()))) {
    AddPair(sidecar, newHead + sidecar.right(kXmp.size()), pairs);
  }
  const qsizetype dot = head.lastIndexOf('.');
  if (dot < 0) return;  // then "Name.xmp" is the name just asked for
  asked.resize(dot);
  asked.append(kXmp.constData(), kXmp.size());
  for (const QByteArray& sidecar : index_.Spellings(QByteArrayView(asked.data(), asked.size()))) {
    if (sidecar != head) AddPair(sidecar, BaseOf(newHead) + ExtensionOf(sidecar), pairs);
  }
}

bool FileSetFinder::MayTravel(QByteArrayView name) { return !CanTakeSidecars(name); }

bool FileSetFinder::TravelsWithSelectedHead(const QByteArray& name) const {
  if (HasExtension(name, kThm)) {
    for (const QByteArray& extension : kThmHeads) {
      if (Selected().folded.contains(BaseOf(name) + extension)) return true;
    }
    return false;
  }
  if (!HasExtension(name, kXmp)) return false;
  const QByteArrayView described = QByteArrayView(name).chopped(kXmp.size());
  const auto head = Selected().folded.find(described);
  return (head != Selected().folded.end() && CanTakeSidecars(*head)) || Selected().headBases.contains(described);
}

}  // namespace renvale::core
