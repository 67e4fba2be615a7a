#include "app/XmlCheck.h"

#include "app/XmlChars.h"
#include "app/XmlNamespaces.h"

#include <algorithm>
#include <deque>
#include <vector>

namespace flowloom {

namespace {

using xmlchars::IsXmlSpace;

constexpr const char* kNotUtf8 = "The bytes are not UTF-8.";
constexpr const char* kInvalidChar = "An invalid character was found in text content.";
constexpr const char* kBadDeclaration = "Invalid xml declaration.";
constexpr const char* kBadDoctype = "A document type declaration is not well-formed.";
constexpr const char* kBadName = "A name was started with an invalid character.";

struct Malformed {
    std::size_t offset;
    std::string reason;
};

// Bytes that need no second look in text and in attribute values: ASCII
// characters XML allows, without the ones that end a run.
struct PlainBytes {
    bool text[256] = {};
    bool value[256] = {};
    constexpr PlainBytes() {
        for (int c = 0x20; c < 0x80; ++c) text[c] = value[c] = c != '<' && c != '&';
        text[']'] = false;
        value['"'] = value['\''] = false;
        for (const int c : {'\t', '\n', '\r'}) text[c] = value[c] = true;
    }
};
constexpr PlainBytes kPlain;

bool IsDeclaration(std::string_view name) { return name == "xmlns" || name.substr(0, 6) == "xmlns:"; }

int DigitValue(char c, bool hex) {
    if (c >= '0' && c <= '9') return c - '0';
    if (!hex) return -1;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

char PredefinedEntity(std::string_view name) {
    if (name == "lt") return '<';
    if (name == "gt") return '>';
    if (name == "amp") return '&';
    if (name == "apos") return '\'';
    if (name == "quot") return '"';
    return 0;
}

bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool IsPubidChar(char c) {
    return c == ' ' || c == '\r' || c == '\n' || IsAsciiLetter(c) || (c >= '0' && c <= '9') ||
           std::string_view("-'()+,./:=?;!*#@$_%").find(c) != std::string_view::npos;
}

bool EqualsNoCaseAscii(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if ((a[i] | 0x20) != (b[i] | 0x20)) return false;
    return true;
}

// A recursive-descent reader of the grammar that keeps the open elements on a
// stack of its own, so that nesting depth costs no machine stack. The first
// violation ends it with Malformed.
class Checker {
public:
    explicit Checker(std::string_view text, XmlOutline* outline = nullptr) : text_(text), outline_(outline) {}
    void Document();

private:
    bool AtEnd() const { return pos_ >= text_.size(); }
    bool Next(std::string_view s) const { return text_.substr(pos_, s.size()) == s; }
    bool Take(std::string_view s) {
        if (!Next(s)) return false;
        pos_ += s.size();
        return true;
    }
    void Expect(std::string_view s, const char* reason) {
        if (!Take(s)) Fail(reason);
    }
    [[noreturn]] void Fail(std::string reason) const { FailAt(pos_, std::move(reason)); }
    [[noreturn]] static void FailAt(std::size_t at, std::string reason) { throw Malformed{at, std::move(reason)}; }

    char32_t Peek(std::size_t& length) const;
    char32_t TakeChar();
    bool SkipSpace();
    void SkipPlain(const bool (&plain)[256]);
    std::string_view TakeName(const char* reason);
    char TakeQuote();
    void Equals();

    void XmlDeclaration();
    void Misc(bool& doctype, bool beforeRoot);
    void Comment();
    void ProcessingInstruction();
    void DocumentType();
    void ExternalId();
    void Literal(bool pubid);
    void Element();
    void Content();
    void StartTag();
    void Attribute();
    void AttributeValue(std::string* decoded);
    void Reference(std::string* decoded);
    void Text();
    void CData();
    void EndTag();

    // Where the child of the root being read began, while outlining.
    void Outline(std::size_t before, bool atRootLevel);

    std::string_view text_;
    XmlOutline* outline_;
    std::size_t childStart_ = 0;
    std::string_view childName_;
    std::string_view lastStartTag_;  // name of the start tag read last
    std::size_t pos_ = 0;
    std::vector<std::string_view> open_;  // names of the open elements
    XmlNamespaceScope namespaces_;
    std::vector<XmlAttributeView> attributes_;  // of the start tag being read
    std::vector<std::size_t> attributeOffsets_;
    std::deque<std::string> declaredValues_;  // values of its xmlns attributes, references replaced
    std::vector<const char*> faults_;
};

char32_t Checker::Peek(std::size_t& length) const {
    std::size_t next = pos_;
    const char32_t c = xmlchars::NextChar(text_, next);
    length = next - pos_;
    return c;
}

// The character at the position, which must be one XML allows.
char32_t Checker::TakeChar() {
    if (AtEnd()) Fail("Unexpected end of input.");
    const unsigned char byte = static_cast<unsigned char>(text_[pos_]);
    if (byte < 0x80) {
        if (byte < 0x20 && !IsXmlSpace(byte)) Fail(kInvalidChar);
        ++pos_;
        return byte;
    }
    std::size_t length = 0;
    const char32_t c = Peek(length);
    if (c == xmlchars::kNotUtf8) Fail(kNotUtf8);
    if (!xmlchars::IsXmlChar(c)) Fail(kInvalidChar);
    pos_ += length;
    return c;
}

bool Checker::SkipSpace() {
    const std::size_t start = pos_;
    while (!AtEnd() && IsXmlSpace(static_cast<unsigned char>(text_[pos_]))) ++pos_;
    return pos_ > start;
}

std::string_view Checker::TakeName(const char* reason) {
    const std::size_t start = pos_;
    auto byte = [this] { return static_cast<unsigned char>(text_[pos_]); };
    if (!AtEnd() && xmlchars::IsAsciiNameStart(byte())) {
        ++pos_;
        while (!AtEnd() && xmlchars::IsAsciiNameChar(byte())) ++pos_;
        if (AtEnd() || byte() < 0x80) return text_.substr(start, pos_ - start);
    }
    // Characters beyond ASCII, one at a time.
    std::size_t length = 0;
    while (!AtEnd()) {
        const char32_t c = Peek(length);
        if (c == xmlchars::kNotUtf8) Fail(kNotUtf8);
        if (pos_ == start ? !xmlchars::IsNameStartChar(c) : !xmlchars::IsNameChar(c)) break;
        pos_ += length;
    }
    if (pos_ == start) Fail(reason);
    return text_.substr(start, pos_ - start);
}

void Checker::SkipPlain(const bool (&plain)[256]) {
    while (!AtEnd() && plain[static_cast<unsigned char>(text_[pos_])]) ++pos_;
}

char Checker::TakeQuote() {
    if (Take("\"")) return '"';
    if (Take("'")) return '\'';
    Fail("A string literal was expected, but no opening quotation mark was found.");
}

void Checker::Equals() {
    SkipSpace();
    Expect("=", "Missing equals sign between attribute and attribute value.");
    SkipSpace();
}

void Checker::Document() {
    if (Next("<?xml") && text_.size() > 5 && IsXmlSpace(static_cast<unsigned char>(text_[5]))) XmlDeclaration();
    bool doctype = false;
    Misc(doctype, true);
    if (AtEnd()) Fail("XML document must have a top level element.");
    Element();
    Misc(doctype, false);
    if (AtEnd()) return;
    if (Next("<") && !Next("<!") && !Next("</")) Fail("Only one top level element is allowed in an XML document.");
    Fail("Invalid at the top level of the document.");
}

// White space, comments and processing instructions around the root; before
// it also the one document type declaration. Stops at anything else.
void Checker::Misc(bool& doctype, bool beforeRoot) {
    for (;;) {
        SkipSpace();
        if (Next("<!--")) {
            Comment();
        } else if (Next("<?")) {
            ProcessingInstruction();
        } else if (beforeRoot && Next("<!DOCTYPE")) {
            if (doctype) Fail("Only one document type declaration is allowed.");
            DocumentType();
            doctype = true;
        } else if (beforeRoot && !AtEnd() && !Next("<")) {
            Fail("Invalid at the top level of the document.");
        } else {
            return;
        }
    }
}

void Checker::XmlDeclaration() {
    pos_ += 5;
    SkipSpace();
    if (!Take("version")) Fail(kBadDeclaration);
    Equals();
    char quote = TakeQuote();
    if (!Take("1.") || AtEnd() || DigitValue(text_[pos_], false) < 0) Fail("Unsupported XML version.");
    while (!AtEnd() && DigitValue(text_[pos_], false) >= 0) ++pos_;
    Expect(std::string_view(&quote, 1), kBadDeclaration);
    bool space = SkipSpace();
    if (space && Take("encoding")) {
        Equals();
        quote = TakeQuote();
        if (AtEnd() || !IsAsciiLetter(text_[pos_])) Fail(kBadDeclaration);
        while (!AtEnd() && (IsAsciiLetter(text_[pos_]) || DigitValue(text_[pos_], false) >= 0 ||
                            text_[pos_] == '.' || text_[pos_] == '_' || text_[pos_] == '-'))
            ++pos_;
        Expect(std::string_view(&quote, 1), kBadDeclaration);
        space = SkipSpace();
    }
    if (space && Take("standalone")) {
        Equals();
        quote = TakeQuote();
        if (!Take("yes") && !Take("no")) Fail(kBadDeclaration);
        Expect(std::string_view(&quote, 1), kBadDeclaration);
        SkipSpace();
    }
    Expect("?>", kBadDeclaration);
}

void Checker::Comment() {
    pos_ += 4;
    for (;;) {
        if (Next("--")) {
            if (!Take("-->")) Fail("Incorrect syntax was used in a comment.");
            return;
        }
        TakeChar();
    }
}

void Checker::ProcessingInstruction() {
    const std::size_t start = pos_;
    pos_ += 2;
    const std::string_view target = TakeName(kBadName);
    if (target == "xml") FailAt(start, "The XML declaration is allowed only at the start of the document.");
    if (EqualsNoCaseAscii(target, "xml")) FailAt(start, "A processing instruction cannot be named 'xml'.");
    if (target.find(':') != std::string_view::npos)
        FailAt(start, "The name of a processing instruction cannot contain a colon.");
    if (Take("?>")) return;
    if (!SkipSpace()) Fail("A processing instruction is not well-formed.");
    while (!Take("?>")) TakeChar();
}

void Checker::DocumentType() {
    pos_ += 9;
    if (!SkipSpace()) Fail(kBadDoctype);
    TakeName(kBadName);
    if (SkipSpace() && (Next("SYSTEM") || Next("PUBLIC"))) ExternalId();
    SkipSpace();
    if (Next("[")) Fail("A document type declaration with an internal subset is not supported.");
    Expect(">", kBadDoctype);
}

void Checker::ExternalId() {
    const bool pub = Take("PUBLIC");
    if (!pub) pos_ += 6;  // SYSTEM
    if (!SkipSpace()) Fail(kBadDoctype);
    if (pub) {
        Literal(true);
        if (!SkipSpace()) Fail(kBadDoctype);
    }
    Literal(false);
}

void Checker::Literal(bool pubid) {
    const char quote = TakeQuote();
    while (!Take(std::string_view(&quote, 1))) {
        if (pubid && !AtEnd() && !IsPubidChar(text_[pos_])) Fail(kBadDoctype);
        TakeChar();
    }
}

void Checker::Element() {
    const std::size_t start = pos_;
    StartTag();
    if (outline_) {
        outline_->rootName = lastStartTag_;
        outline_->rootStartTag = text_.substr(start, pos_ - start);
    }
    while (!open_.empty()) {
        const std::size_t before = pos_;
        const bool atRootLevel = open_.size() == 1;
        Content();
        if (outline_) Outline(before, atRootLevel);
    }
}

void Checker::Outline(std::size_t before, bool atRootLevel) {
    if (atRootLevel && open_.size() == 2) {  // a child of the root opened
        childStart_ = before;
        childName_ = lastStartTag_;
        return;
    }
    const bool childEnded = !atRootLevel && open_.size() == 1;
    const bool emptyChild = atRootLevel && open_.size() == 1 && text_[before] == '<' &&
                            text_[before + 1] != '/' && text_[before + 1] != '!' && text_[before + 1] != '?';
    if (emptyChild) {
        childStart_ = before;
        childName_ = lastStartTag_;
    }
    if (!childEnded && !emptyChild) return;
    outline_->children.push_back({childName_, text_.substr(childStart_, pos_ - childStart_)});
}

// One piece of the content of the innermost open element.
void Checker::Content() {
    if (AtEnd()) Fail("The element '" + std::string(open_.back()) + "' is not closed.");
    if (text_[pos_] == '&') return Reference(nullptr);
    if (text_[pos_] != '<') return Text();
    if (Next("</")) return EndTag();
    if (Next("<!--")) return Comment();
    if (Next("<![CDATA[")) return CData();
    if (Next("<?")) return ProcessingInstruction();
    if (Next("<!")) Fail("Declarations are not allowed in element content.");
    StartTag();
}

void Checker::StartTag() {
    const std::size_t start = pos_;
    ++pos_;
    const std::string_view name = TakeName(kBadName);
    lastStartTag_ = name;
    attributes_.clear();
    attributeOffsets_.clear();
    declaredValues_.clear();
    bool empty = false;
    for (;;) {
        const bool space = SkipSpace();
        if (Take("/>")) {
            empty = true;
            break;
        }
        if (Take(">")) break;
        if (AtEnd()) Fail("The start tag is not closed.");
        if (!space) Fail("White space is required between attributes.");
        Attribute();
    }
    // Names taken here are names already: without a colon or a declaration
    // there is nothing about namespaces left to judge.
    const auto unprefixed = [](std::string_view n) { return n.find(':') == std::string_view::npos; };
    const bool plain = unprefixed(name) && declaredValues_.empty() &&
                       std::all_of(attributes_.begin(), attributes_.end(),
                                   [&](const XmlAttributeView& a) { return unprefixed(a.name); });
    if (plain) namespaces_.OpenUnprefixed(attributes_, faults_);
    else if (const char* fault = namespaces_.Open(name, attributes_, faults_)) FailAt(start + 1, fault);
    for (std::size_t i = 0; i < faults_.size(); ++i)
        if (faults_[i]) FailAt(attributeOffsets_[i], faults_[i]);
    if (empty) namespaces_.Close();
    else open_.push_back(name);
}

void Checker::Attribute() {
    const std::size_t start = pos_;
    const std::string_view name = TakeName(kBadName);
    Equals();
    std::string* declared = IsDeclaration(name) ? &declaredValues_.emplace_back() : nullptr;
    const std::size_t valueStart = pos_;
    AttributeValue(declared);
    attributes_.push_back({name, declared ? std::string_view(*declared) : text_.substr(valueStart, pos_ - valueStart)});
    attributeOffsets_.push_back(start);
}

// A quoted value; `decoded`, when given, gets it as a parser hands it on:
// references replaced and each line end or white space character a blank.
void Checker::AttributeValue(std::string* decoded) {
    const char quote = TakeQuote();
    for (;;) {
        if (!decoded) SkipPlain(kPlain.value);
        if (AtEnd()) Fail("The attribute value is not closed.");
        const char c = text_[pos_];
        if (c == quote) {
            ++pos_;
            return;
        }
        if (c == '<') Fail("The character '<' cannot be used in an attribute value.");
        if (c == '&') {
            Reference(decoded);
            continue;
        }
        const std::size_t from = pos_;
        const char32_t taken = TakeChar();
        if (!decoded) continue;
        if (taken == '\r' && Next("\n")) ++pos_;
        if (IsXmlSpace(taken)) *decoded += ' ';
        else decoded->append(text_.substr(from, pos_ - from));
    }
}

void Checker::Reference(std::string* decoded) {
    const std::size_t start = pos_;
    ++pos_;
    if (Take("#")) {
        const bool hex = Take("x");
        char32_t value = 0;
        bool digits = false;
        for (int d; !AtEnd() && (d = DigitValue(text_[pos_], hex)) >= 0; ++pos_) {
            digits = true;
            if (value <= 0x10FFFF) value = value * (hex ? 16 : 10) + static_cast<char32_t>(d);
        }
        if (!digits) Fail("Invalid character reference.");
        Expect(";", "A semicolon character was expected.");
        if (!xmlchars::IsXmlChar(value)) FailAt(start, "The character reference names a character XML does not allow.");
        if (decoded) xmlchars::AppendUtf8(*decoded, value);
        return;
    }
    const std::string_view name = TakeName("A reference must be a name or a character number.");
    Expect(";", "A semicolon character was expected.");
    const char c = PredefinedEntity(name);
    if (!c) FailAt(start, "Reference to undefined entity '" + std::string(name) + "'.");
    if (decoded) *decoded += c;
}

void Checker::Text() {
    for (SkipPlain(kPlain.text); !AtEnd(); SkipPlain(kPlain.text)) {
        const char c = text_[pos_];
        if (c == '<' || c == '&') return;
        if (c == ']' && Next("]]>")) Fail("The literal string ']]>' is not allowed in element content.");
        TakeChar();
    }
}

void Checker::CData() {
    pos_ += 9;
    while (!Take("]]>")) TakeChar();
}

void Checker::EndTag() {
    const std::size_t start = pos_;
    pos_ += 2;
    const std::string_view name = TakeName(kBadName);
    SkipSpace();
    Expect(">", "The end tag is not well-formed.");
    if (name != open_.back())
        FailAt(start, "End tag '" + std::string(name) + "' does not match the start tag '" + std::string(open_.back()) + "'.");
    open_.pop_back();
    namespaces_.Close();
}

}  // namespace

std::optional<XmlSyntaxError> CheckXmlDocument(std::string_view text) {
    try {
        Checker(text).Document();
        return std::nullopt;
    } catch (const Malformed& m) {
        return XmlSyntaxError{m.offset, m.reason};
    }
}

std::optional<XmlSyntaxError> CheckXmlDocument(std::string_view text, XmlOutline& outline) {
    outline = {};
    try {
        Checker(text, &outline).Document();
        return std::nullopt;
    } catch (const Malformed& m) {
        outline = {};
        return XmlSyntaxError{m.offset, m.reason};
    }
}

}  // namespace flowloom
