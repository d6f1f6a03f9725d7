#include "fileops/JournalFormat.h"

#include <QList>

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

QByteArray Hex(const QByteArray& raw) { return raw.isEmpty() ? QByteArrayLiteral("-") : raw.toHex(); }

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

}  // namespace

QByteArray JournalFormat::Write(const core::OperationPlan& plan) {
  QByteArray out = kMagic + QByteArray::number(kVersion) + '\n';
  out += "kind " + QByteArray(1, static_cast<char>(plan.kind)) + '\n';
  out += "folder " + Hex(plan.folder) + '\n';
  out += "started " + QByteArray::number(plan.started.toMSecsSinceEpoch()) + '\n';
  for (const core::PlanStep& step : plan.steps) {
    const core::FileIdentity& id = step.identity;
    out += "step " + QByteArray(1, static_cast<char>(step.kind)) + ' ' + Hex(step.from) + ' ' + Hex(step.to) + ' ' +
           QByteArray::number(id.size) + ' ' + QByteArray::number(id.modifiedNs) + ' ' +
           QByteArray::number(id.device) + ' ' + QByteArray::number(id.inode) + ' ' +
           (id.inodeStable ? "1" : "0") + '\n';
  }
  out += kSum + QByteArray::number(Checksum(out.constData(), out.size()), 16) + '\n';
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
  const qsizetype sumStart = bytes.lastIndexOf('\n' + kSum) + 1;
  if (sumStart <= 0 || !bytes.endsWith('\n')) {
    result.status = JournalStatus::Truncated;
    return result;
  }
  const QByteArray sumText = bytes.mid(sumStart + kSum.size()).chopped(1);
  if (sumText != QByteArray::number(Checksum(data, sumStart), 16)) return result;
  QList<QByteArray> lines = bytes.left(sumStart - 1).split('\n');
  lines.removeFirst();
  if (!ReadBody(lines, &result.plan)) return result;
  result.status = JournalStatus::Ok;
  return result;
}

}  // namespace renvale::fileops
