#include "app/XmlCheck.h"

#include "app/XmlChars.h"
#include "app/XmlNamespaces.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <deque>
#include <vector>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace flowloom {

namespace {

using xmlchars::IsXmlSpace;

constexpr const char* kNotUtf8 = "The bytes are not UTF-8.";
constexpr const char* kInvalidChar = "An invalid character was found in text content.";
constexpr const char* kBadDeclaration = "Invalid xml declaration.";
constexpr const char* kBadDoctype = "A document type declaration is not well-formed.";
constexpr const char* kBadName = "A name was started with an invalid character.";
constexpr const char* kDuplicate = "Duplicate attribute.";

struct Malformed {
    std::size_t offset;
    std::string reason;
};

// What each byte can be where the hot loops read: part of an ASCII name (the
// colon on its own), white space, or a byte that needs no second look in text
// or in attribute values (ASCII characters XML allows, without the ones that
// end a run). Bytes from 0x80 on are in no class: they take the slow way.
enum ByteClass : unsigned char {
    kNameStart = 1,  // without the colon
    kNameChar = 2,   // without the colon
    kColon = 4,
    kSpace = 8,
    kPlainText = 16,
    kPlainValue = 32,
};

struct ByteClasses {
    unsigned char of[256] = {};
    constexpr ByteClasses() {
        for (int c = 0x20; c < 0x80; ++c)
            if (c != '<' && c != '&' && c != ']') of[c] |= kPlainText;
        for (int c = 0x20; c < 0x80; ++c)
            if (c != '<' && c != '&' && c != '"' && c != '\'') of[c] |= kPlainValue;
        for (const int c : {'\t', '\n', '\r', ' '}) of[c] |= kSpace | kPlainText | kPlainValue;
        for (int c = 0; c < 0x80; ++c) {
            if (c == ':') continue;
            if (xmlchars::kAsciiName.start[c]) of[c] |= kNameStart;
            if (xmlchars::kAsciiName.name[c]) of[c] |= kNameChar;
        }
        of[static_cast<unsigned char>(':')] |= kColon;
    }
};
constexpr ByteClasses kBytes;

unsigned ClassOf(char c) { return kBytes.of[static_cast<unsigned char>(c)]; }

// The first byte from `p` on that is not in `byteClass`, or `end`; four at a
// time while there are four.
const char* SkipClass(const char* p, const char* end, unsigned byteClass) {
    for (; end - p >= 4; p += 4) {
        if (!(ClassOf(p[0]) & byteClass)) return p;
        if (!(ClassOf(p[1]) & byteClass)) return p + 1;
        if (!(ClassOf(p[2]) & byteClass)) return p + 2;
        if (!(ClassOf(p[3]) & byteClass)) return p + 3;
    }
    while (p < end && (ClassOf(*p) & byteClass)) ++p;
    return p;
}

#if defined(__SSE2__) || defined(_M_X64)
// A bit for each of the 16 bytes at `p` that is outside the class.
template <unsigned kClass>
unsigned Outside(const char* p) {
    static_assert(kClass == kNameChar || kClass == (kNameChar | kColon) || kClass == kPlainValue || kClass == kPlainText);
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const auto is = [&v](char c) { return _mm_cmpeq_epi8(v, _mm_set1_epi8(c)); };
    if constexpr ((kClass & kNameChar) != 0) {
        // Letters, '-', '.', digits (all but '/' from '-' to '9') and '_'.
        const __m128i lower = _mm_or_si128(v, _mm_set1_epi8(0x20));
        const __m128i letter =
            _mm_and_si128(_mm_cmpgt_epi8(lower, _mm_set1_epi8('a' - 1)), _mm_cmplt_epi8(lower, _mm_set1_epi8('z' + 1)));
        const __m128i digitLike =
            _mm_and_si128(_mm_cmpgt_epi8(v, _mm_set1_epi8('-' - 1)), _mm_cmplt_epi8(v, _mm_set1_epi8('9' + 1)));
        __m128i inside = _mm_or_si128(_mm_or_si128(letter, _mm_andnot_si128(is('/'), digitLike)), is('_'));
        if constexpr ((kClass & kColon) != 0) inside = _mm_or_si128(inside, is(':'));
        return ~static_cast<unsigned>(_mm_movemask_epi8(inside)) & 0xFFFF;
    } else {
        // Bytes below 0x20 and from 0x80 on are below 0x20 as signed bytes;
        // of them only tab, line feed and carriage return are in.
        const __m128i lineSpace = _mm_or_si128(is('\t'), _mm_or_si128(is('\n'), is('\r')));
        const __m128i control = _mm_andnot_si128(lineSpace, _mm_cmplt_epi8(v, _mm_set1_epi8(0x20)));
        __m128i outside = _mm_or_si128(control, _mm_or_si128(is('<'), is('&')));
        if constexpr (kClass == kPlainValue) outside = _mm_or_si128(outside, _mm_or_si128(is('"'), is('\'')));
        if constexpr (kClass == kPlainText) outside = _mm_or_si128(outside, is(']'));
        return static_cast<unsigned>(_mm_movemask_epi8(outside));
    }
}
#endif

// As SkipClass, sixteen bytes at a time where the machine can.
template <unsigned kClass>
const char* SkipRun(const char* p, const char* end) {
#if defined(__SSE2__) || defined(_M_X64)
    for (; end - p >= 16; p += 16)
        if (const unsigned outside = Outside<kClass>(p)) return p + std::countr_zero(outside);
#endif
    return SkipClass(p, end, kClass);
}

// The first attribute whose name an earlier one has, or nullptr. A bit for
// each name's length and ends lets most tags through with one look at each name.
const XmlAttributeView* FirstDuplicate(const std::vector<XmlAttributeView>& attributes) {
    std::uint64_t seen = 0;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const std::string_view name = attributes[i].name;
        const unsigned hash = static_cast<unsigned>(name.size()) * 7 +
                              static_cast<unsigned char>(name.front()) * 3 + static_cast<unsigned char>(name.back());
        const std::uint64_t bit = std::uint64_t{1} << (hash & 63);
        if (seen & bit)
            for (std::size_t j = 0; j < i; ++j)
                if (attributes[j].name == name) return &attributes[i];
        seen |= bit;
    }
    return nullptr;
}

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
    struct OpenElement {
        std::string_view name;
        bool scoped;  // opened in namespaces_, to be closed there
    };

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
    // Whether there was any white space; most often there is none.
    bool SkipSpace() { return !AtEnd() && (ClassOf(text_[pos_]) & kSpace) && SkipMoreSpace(); }
    bool SkipMoreSpace();
    template <unsigned kClass>
    void SkipRunOf() {
        pos_ = static_cast<std::size_t>(SkipRun<kClass>(text_.data() + pos_, text_.data() + text_.size()) - text_.data());
    }
    std::string_view TakeName(const char* reason, bool* colon = nullptr);
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
    bool Attribute();
    bool OpenInScope(std::size_t start, std::string_view name, bool plain);
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
    std::vector<OpenElement> open_;
    XmlNamespaceScope namespaces_;
    std::vector<XmlAttributeView> attributes_;  // of the start tag being read
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

bool Checker::SkipMoreSpace() {
    const char* const begin = text_.data();
    pos_ = static_cast<std::size_t>(SkipClass(begin + pos_ + 1, begin + text_.size(), kSpace) - begin);
    return true;
}

// A name; `colon`, when given, learns whether there is a colon in it.
std::string_view Checker::TakeName(const char* reason, bool* colon) {
    const std::size_t start = pos_;
    const char* const begin = text_.data();
    const char* const end = begin + text_.size();
    const char* p = begin + pos_;
    if (p < end && (ClassOf(*p) & (kNameStart | kColon))) {
        bool colons = *p == ':';
        p = SkipRun<kNameChar>(p + 1, end);
        if (p < end && *p == ':') {
            colons = true;
            p = SkipRun<kNameChar | kColon>(p + 1, end);
        }
        pos_ = static_cast<std::size_t>(p - begin);
        if (p == end || static_cast<unsigned char>(*p) < 0x80) {
            if (colon) *colon = colons;
            return {begin + start, pos_ - start};
        }
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
    const std::string_view name = text_.substr(start, pos_ - start);
    if (colon) *colon = name.find(':') != std::string_view::npos;
    return name;
}

char Checker::TakeQuote() {
    if (!AtEnd() && (text_[pos_] == '"' || text_[pos_] == '\'')) return text_[pos_++];
    Fail("A string literal was expected, but no opening quotation mark was found.");
}

void Checker::Equals() {
    SkipSpace();
    if (AtEnd() || text_[pos_] != '=') Fail("Missing equals sign between attribute and attribute value.");
    ++pos_;
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
    if (AtEnd()) Fail("The element '" + std::string(open_.back().name) + "' is not closed.");
    if (text_[pos_] == '&') return Reference(nullptr);
    if (text_[pos_] != '<') return Text();
    const char next = pos_ + 1 < text_.size() ? text_[pos_ + 1] : '\0';
    if (next == '/') return EndTag();
    if (next == '?') return ProcessingInstruction();
    if (next == '!') {
        if (Next("<!--")) return Comment();
        if (Next("<![CDATA[")) return CData();
        Fail("Declarations are not allowed in element content.");
    }
    StartTag();
}

void Checker::StartTag() {
    const std::size_t start = pos_;
    ++pos_;
    bool prefixed = false;
    const std::string_view name = TakeName(kBadName, &prefixed);
    lastStartTag_ = name;
    attributes_.clear();
    if (!declaredValues_.empty()) declaredValues_.clear();
    // Plain: no colon in any name and no declaration, as most tags are.
    bool plain = !prefixed;
    bool empty = false;
    for (;;) {
        const bool space = SkipSpace();
        if (AtEnd()) Fail("The start tag is not closed.");
        if (text_[pos_] == '>') {
            ++pos_;
            break;
        }
        if (Next("/>")) {
            pos_ += 2;
            empty = true;
            break;
        }
        if (!space) Fail("White space is required between attributes.");
        plain &= Attribute();
    }
    const bool scoped = OpenInScope(start, name, plain);
    if (!empty) open_.push_back({name, scoped});
    else if (scoped) namespaces_.Close();
}

// Judges the names of the start tag just read. A plain tag with a few
// attributes can only hold a duplicate and binds nothing, so it is judged
// here and never enters the namespace scope; whether it did is the result.
bool Checker::OpenInScope(std::size_t start, std::string_view name, bool plain) {
    // Names point into the text, so where an attribute stands is where its name does.
    const auto offset = [this](const XmlAttributeView& a) { return static_cast<std::size_t>(a.name.data() - text_.data()); };
    constexpr std::size_t kFewAttributes = 32;
    if (plain && attributes_.size() <= kFewAttributes) {
        if (const XmlAttributeView* duplicate = FirstDuplicate(attributes_)) FailAt(offset(*duplicate), kDuplicate);
        return false;
    }
    if (plain) namespaces_.OpenUnprefixed(attributes_, faults_);
    else if (const char* fault = namespaces_.Open(name, attributes_, faults_)) FailAt(start + 1, fault);
    for (std::size_t i = 0; i < faults_.size(); ++i)
        if (faults_[i]) FailAt(offset(attributes_[i]), faults_[i]);
    return true;
}

// Whether the attribute is plain: its name without a colon and no declaration.
bool Checker::Attribute() {
    bool prefixed = false;
    const std::string_view name = TakeName(kBadName, &prefixed);
    Equals();
    const bool declaration = prefixed ? IsDeclaration(name) : name == "xmlns";
    std::string* declared = declaration ? &declaredValues_.emplace_back() : nullptr;
    const std::size_t valueStart = pos_;
    AttributeValue(declared);
    attributes_.push_back({name, declared ? std::string_view(*declared) : text_.substr(valueStart, pos_ - valueStart)});
    return !prefixed && !declaration;
}

// A quoted value; `decoded`, when given, gets it as a parser hands it on:
// references replaced and each line end or white space character a blank.
void Checker::AttributeValue(std::string* decoded) {
    const char quote = TakeQuote();
    for (;;) {
        if (!decoded) SkipRunOf<kPlainValue>();
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
    for (SkipRunOf<kPlainText>(); !AtEnd(); SkipRunOf<kPlainText>()) {
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
    const OpenElement open = open_.back();
    // Most end tags are the open name and ">" at once: bytes that were a name
    // before and stop at the same character are that name again.
    const std::size_t close = start + 2 + open.name.size();
    if (close < text_.size() && text_[close] == '>' &&
        std::memcmp(text_.data() + start + 2, open.name.data(), open.name.size()) == 0) {
        pos_ = close + 1;
    } else {
        pos_ += 2;
        const std::string_view name = TakeName(kBadName);
        SkipSpace();
        Expect(">", "The end tag is not well-formed.");
        if (name != open.name)
            FailAt(start,
                   "End tag '" + std::string(name) + "' does not match the start tag '" + std::string(open.name) + "'.");
    }
    open_.pop_back();
    if (open.scoped) namespaces_.Close();
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
