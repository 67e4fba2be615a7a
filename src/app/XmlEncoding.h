#pragma once

#include "app/XmlCheck.h"

#include <string>
#include <string_view>

namespace flowloom {

// The text of a document as UTF-8, from the bytes of a file. Accepted are
// UTF-8 (with or without a byte order mark), UTF-16 with a byte order mark,
// and 8-bit text that its declaration calls ISO-8859-1 or US-ASCII. `text` is
// a view of `bytes`, or of `storage` when the bytes had to be converted.
// False with `error` for bytes that do not fit the encoding (then `text` is
// what was decoded up to there) and for an encoding declared that the bytes
// are not in, or that is not supported.
bool DecodeXmlText(std::string_view bytes, std::string& storage, std::string_view& text, XmlSyntaxError& error);

}  // namespace flowloom
