#include "fileops/JournalFormat.h"

#include <QList>
#include <algorithm>
#include <charconv>

namespace renvale::fileops {

namespace {

const QByteArray kMagic = QByteArrayLiteral("RENVALE-JOURNAL ");
const QByteArray kSum = QByteArrayLiteral("sum ");

// FNV-1a, 64 bits: catches a flipped byte or a line pasted from another
// journal; it is not meant to stop anyone on purpose.
quint64 Checksum(const char* data, qint64 size) {
  quint64 hash = 14695981039346656037ull;
  for (qint64 i = 0; i < size; ++i) {
    hash ^= static_cast<unsigned char>(data[i]);
    hash *= 1099511628211ull;
  }
  return hash;
}

// A batch writes ten thousand paths before its first rename: each step
// line is written in place into the one buffer, with no string made and
// no size checked per field.
char* PutHex(char* p, const QByteArray& raw) {
  if (raw.isEmpty()) {
    *p++ = '-';
    return p;
  }
  static constexpr char kDigits[] = "0123456789abcdef";
  for (const char c : raw) {
    *p++ = kDigits[static_cast<unsigned char>(c) >> 4];
    *p++ = kDigits[static_cast<unsigned char>(c) & 15];
  }
  return p;
}

void AppendHex(QByteArray& out, const QByteArray& raw) {
  const qsizetype at = out.size();
  out.resize(at + std::max<qsizetype>(1, 2 * raw.size()));
  PutHex(out.data() + at, raw);
}

template <typename Integer>
char* PutNumber(char* p, Integer value) {
  *p++ = ' ';
  return std::to_chars(p, p + 20, value).ptr;
}

void AppendStep(QByteArray& out, const core::PlanStep& step) {
  // "step K " and the numbers' spaces, signs and at most 20 digits each.
  constexpr qsizetype kMostBesidesPaths = 7 + 1 + 4 * 21 + 3;
  const core::FileIdentity& id = step.identity;
  const qsizetype at = out.size();
  out.resize(at + 2 * (step.from.size() + step.to.size()) + 2 + kMostBesidesPaths);
  char* p = out.data() + at;
  p = std::copy_n("step ", 5, p);
  *p++ = static_cast<char>(step.kind);
  *p++ = ' ';
  p = PutHex(p, step.from);
  *p++ = ' ';
  p = PutHex(p, step.to);
  p = PutNumber(p, id.size);
  p = PutNumber(p, id.modifiedNs);
  p = PutNumber(p, id.device);
  p = PutNumber(p, id.inode);
  p = std::copy_n(id.inodeStable ? " 1\n" : " 0\n", 3, p);
  out.truncate(p - out.constData());
}

// Steps, then the checksum of everything from `start` on.
void AppendSteps(QByteArray& out, qsizetype start, const std::vector<core::PlanStep>& steps) {
  qsizetype most = out.size() + 64;
  for (const core::PlanStep& step : steps) most += 2 * (step.from.size() + step.to.size()) + 128;
  out.reserve(most);
  for (const core::PlanStep& step : steps) AppendStep(out, step);
  out += kSum + QByteArray::number(Checksum(out.constData() + start, out.size() - start), 16) + '\n';
}

bool FromHex(const QByteArray& text, QByteArray* raw) {
  if (text == "-") {
    raw->clear();
    return true;
  }
  if (text.isEmpty() || text.size() % 2 != 0) return false;
  for (const char c : text) {
    if (!((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'))) return false;
  }
  *raw = QByteArray::fromHex(text);
  return true;
}

bool Number(const QByteArray& text, qint64* value) {
  bool ok = false;
  *value = text.toLongLong(&ok);
  return ok;
}

bool Unsigned(const QByteArray& text, quint64* value) {
  bool ok = false;
  *value = text.toULongLong(&ok);
  return ok;
}

bool KnownStepKind(char c) { return c == 'R' || c == 'C' || c == 'T' || c == 'M'; }
bool KnownOperationKind(char c) { return QByteArrayLiteral("rbsmctd").contains(c); }

bool ReadStep(const QList<QByteArray>& fields, core::PlanStep* step) {
  if (fields.size() != 9 || fields[1].size() != 1 || !KnownStepKind(fields[1][0])) return false;
  step->kind = static_cast<core::StepKind>(fields[1][0]);
  qint64 stable = 0;
  core::FileIdentity& id = step->identity;
  if (!FromHex(fields[2], &step->from) || !FromHex(fields[3], &step->to) || !Number(fields[4], &id.size) ||
      !Number(fields[5], &id.modifiedNs) || !Unsigned(fields[6], &id.device) || !Unsigned(fields[7], &id.inode) ||
      !Number(fields[8], &stable) || (stable != 0 && stable != 1)) {
    return false;
  }
  id.inodeStable = stable == 1;
  return !step->from.isEmpty();
}

// Everything between the first line and the checksum line.
bool ReadBody(const QList<QByteArray>& lines, core::OperationPlan* plan) {
  if (lines.size() < 3) return false;
  const QList<QByteArray> kind = lines[0].split(' ');
  const QList<QByteArray> folder = lines[1].split(' ');
  const QList<QByteArray> started = lines[2].split(' ');
  qint64 ms = 0;
  if (kind.size() != 2 || kind[0] != "kind" || kind[1].size() != 1 || !KnownOperationKind(kind[1][0]) ||
      folder.size() != 2 || folder[0] != "folder" || !FromHex(folder[1], &plan->folder) || started.size() != 2 ||
      started[0] != "started" || !Number(started[1], &ms)) {
    return false;
  }
  plan->kind = static_cast<core::OperationKind>(kind[1][0]);
  plan->started = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
  for (qsizetype i = 3; i < lines.size(); ++i) {
    const QList<QByteArray> fields = lines[i].split(' ');
    core::PlanStep step;
    if (fields[0] != "step" || !ReadStep(fields, &step)) return false;
    plan->steps.push_back(step);
  }
  return true;
}

// The lines of every piece that ends in its checksum line, checked. After
// the last one, only steps of an addition cut short may follow.
JournalStatus ReadPieces(const QByteArray& bytes, qint64 version, QList<QByteArray>* lines) {
  qsizetype pieceStart = 0;
  qsizetype piecesRead = 0;
  QList<QByteArray> piece;
  for (qsizetype at = 0;;) {
    const qsizetype end = bytes.indexOf('\n', at);
    if (end < 0) break;
    const QByteArray line = bytes.mid(at, end - at);
    at = end + 1;
    if (!line.startsWith(kSum)) {
      piece.push_back(line);
      continue;
    }
    const quint64 sum = Checksum(bytes.constData() + pieceStart, end - static_cast<qsizetype>(line.size()) - pieceStart);
    if (line.mid(kSum.size()) != QByteArray::number(sum, 16)) return JournalStatus::Garbled;
    if (piecesRead++ > 0 && version < 2) return JournalStatus::Garbled;
    *lines += piece;
    piece.clear();
    pieceStart = at;
  }
  if (piecesRead == 0) return JournalStatus::Truncated;
  for (const QByteArray& line : piece) {
    core::PlanStep step;
    if (!line.startsWith("step ") || !ReadStep(line.split(' '), &step)) return JournalStatus::Garbled;
  }
  return JournalStatus::Ok;
}

}  // namespace

QByteArray JournalFormat::Write(const core::OperationPlan& plan) {
  QByteArray out = kMagic + QByteArray::number(kVersion) + '\n';
  out += "kind " + QByteArray(1, static_cast<char>(plan.kind)) + '\n';
  out += "folder ";
  AppendHex(out, plan.folder);
  out += "\nstarted " + QByteArray::number(plan.started.toMSecsSinceEpoch()) + '\n';
  AppendSteps(out, 0, plan.steps);
  return out;
}

QByteArray JournalFormat::Addition(const std::vector<core::PlanStep>& steps) {
  QByteArray out;
  AppendSteps(out, 0, steps);
  return out;
}

JournalRead JournalFormat::Read(const char* data, qint64 size) {
  JournalRead result;
  if (data == nullptr || size <= 0) {
    result.status = JournalStatus::Truncated;
    return result;
  }
  const QByteArray bytes = QByteArray::fromRawData(data, static_cast<qsizetype>(size));
  const qsizetype firstEnd = bytes.indexOf('\n');
  const QByteArray first = bytes.left(firstEnd < 0 ? bytes.size() : firstEnd);
  if (!first.startsWith(kMagic)) {
    // The start of the magic alone is a file cut short in its first line.
    result.status = kMagic.startsWith(first) ? JournalStatus::Truncated : JournalStatus::Garbled;
    return result;
  }
  qint64 version = 0;
  if (!Number(first.mid(kMagic.size()), &version) || version < 1) {
    result.status = firstEnd < 0 ? JournalStatus::Truncated : JournalStatus::Garbled;
    return result;
  }
  if (version > kVersion) {
    result.status = JournalStatus::Newer;
    return result;
  }
  QList<QByteArray> lines;
  result.status = ReadPieces(bytes, version, &lines);
  if (result.status != JournalStatus::Ok) return result;
  lines.removeFirst();
  if (!ReadBody(lines, &result.plan)) result.status = JournalStatus::Garbled;
  return result;
}

}  // namespace renvale::fileops
