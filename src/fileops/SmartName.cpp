#include "fileops/SmartName.h"

namespace renvale::fileops {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// "01" ... "99", then "100" ...
QByteArray SubSeries(int k) { return k < 10 ? '0' + QByteArray::number(k) : QByteArray::number(k); }

}  // namespace

QByteArray SmartName::Candidate(const QByteArray& name, int k) {
  const qsizetype dot = name.lastIndexOf('.');
  // A leading dot stays with the base, which is then that dot alone.
  const qsizetype baseLength = dot < 0 ? name.size() : (dot == 0 ? 1 : dot);
  const QByteArray base = name.left(baseLength);
  const QByteArray extension = dot < 0 ? QByteArray() : name.mid(dot);
  if (base.isEmpty() || !IsDigit(base.back())) return base + ' ' + SubSeries(k) + extension;
  qsizetype runStart = base.size() - 1;
  while (runStart > 0 && IsDigit(base[runStart - 1])) --runStart;
  if (runStart == 0) runStart = 1;
  return base.left(runStart) + SubSeries(k) + base.mid(runStart) + extension;
}

}  // namespace renvale::fileops
