#pragma once

#include <string>

#include <xercesc/util/XercesDefs.hpp>

namespace tvpolicy::policy {

/// Drops what follows the last ">" of `xml` (keeping the ">"), then what precedes the first
/// "<"; a text without either is left as it is at that step. The characters are those of the
/// document's encoding: one byte wide, or the code units of UTF-16 and UTF-32 in either byte
/// order, told by a byte-order mark (which is kept) or, without one, by the zero bytes of the
/// first code unit. For a wide text without a mark, the name of its encoding is returned, as the
/// XML reader could not tell it from a document that does not open with a declaration; null
/// otherwise.
const XMLCh* trimToMarkup(std::string& xml);

}  // namespace tvpolicy::policy
