#pragma once

#include <QByteArray>

namespace renvale::fileops {

// Every occurrence of `search` in `text` replaced by `replacement`, found
// left to right and byte for byte (so letter case counts). After a match
// the search goes on behind it: matches never overlap ("aa" in "aaa" is
// replaced once) and a replacement is never searched again. An empty
// `search` leaves the text as it is.
//
// Our own loop rather than QByteArray::replace: the rule above is the
// product's, whatever a library's rule is or becomes.
QByteArray ReplaceAll(const QByteArray& text, const QByteArray& search, const QByteArray& replacement);

}  // namespace renvale::fileops
