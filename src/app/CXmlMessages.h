#pragma once

#include "app/KeyedCollection.h"

#include <string>

namespace flowloom {

// User-facing texts by code, from a message catalogue ("messages.xml"): a
// document whose root holds a Messages element, each element child of which
// is one message with the attributes Code and Text.
class CXmlMessages {
public:
    using Collection = KeyedCollection<std::string>;

    const Collection& Messages() const noexcept { return messages_; }

    // True when loaded without error; otherwise the reason is shown in a
    // critical message box. The previous texts stay unless a Messages
    // element with children was reached.
    bool Load(const std::string& vstrXmlFileFullPath);
    // The text for the code; "" for a code that is not there.
    std::string GetMessage(const std::string& vstrMsgCode) const;

private:
    Collection messages_;
};

// The catalogue of the program: the designer loads "messages.xml" into it
// once at start, and everything else reads its texts from there.
CXmlMessages& Messages();

}  // namespace flowloom
