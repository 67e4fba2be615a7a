#include "sheets/SaveAsFormats.h"

#include "sheets/SheetRows.h"
#include "model/Process.h"

#include <algorithm>

namespace flowloom::sheets {

namespace {

// Excel's formats: names and codes, position for position. The codes keep
// a ";" at either end so that each can be searched for as ";code;".
constexpr const char* kExcelNames =
    "Workbook normal;CSV;Current Platform Text;DBF2;DBF3;DBF4;DIF;Excel12;Excel2;Excel2 FarEast;Excel3;"
    "Excel4;Excel4 Workbook;Excel5;Excel7;Excel8;Excel9795;HTML format;International Add-In;"
    "International Macro;Macintosh CSV;Macintosh Text;Microsoft Excel Add-In;MSDOS CSV;MSDOS Text;"
    "Open XML Add-In;Open XML Template;Open XML Template Macro Enabled;Open XML Workbook;"
    "Open XML Workbook Macro Enabled;Printer Text;SYLK;Template;Unicode Text;Web Archive;Windows CSV;"
    "Windows Text;WJ2WD1;WJ3;WJ3FJ3;WK1;WK1ALL;WK1FMT;WK3;WK3FM3;WK4;Works2 FarEast;Worksheet;WQ1;"
    "XML Spreadsheet";
constexpr const char* kExcelCodes =
    ";-4143;6;-4158;7;8;11;9;50;16;27;29;33;35;39;39;56;43;44;26;25;22;19;18;24;21;55;54;53;51;52;36;2;17;42;"
    "45;23;20;14;40;41;5;31;30;15;32;38;28;4;34;46;";

constexpr std::int32_t kLastClassicWordFormat = 11;

}  // namespace

std::vector<std::string> FileFormatList(std::int32_t application) {
    switch (application) {
    case dockind::Word:
        return {"0 - wdFormatDocument",
                "1 - wdFormatTemplate",
                "2 - wdFormatText",
                "3 - wdFormatTextLineBreaks",
                "4 - wdFormatDOSText",
                "5 - wdFormatDOSTextLineBreaks",
                "6 - wdFormatRTF",
                "7 - wdFormatEncodedText",
                "8 - wdFormatHTML",
                "9 - wdFormatWebArchive",
                "10 - wdFormatFilteredHTML",
                "11 - wdFormatXML",
                "12 - wdFormatXMLDocument",
                "13 - wdFormatXMLDocumentMacroEnabled",
                "14 - wdFormatXMLTemplate",
                "15 - wdFormatXMLTemplateMacroEnabled",
                "16 - wdFormatDocumentDefault",
                "17 - wdFormatPDF",
                "18 - wdFormatXPS"};
    case dockind::Excel: return SplitList(kExcelNames);
    case dockind::MailBody: return {"HTML", "Text Only", "Message Format"};
    case dockind::Html: return {"HTML"};
    case dockind::Text: return {"Text"};
    default: return {std::string()};
    }
}

std::optional<std::int32_t> ExcelFormatPosition(std::string_view storedCode) {
    const std::string_view codes = kExcelCodes;
    std::string needle(1, ';');
    needle.append(storedCode).push_back(';');
    const std::size_t hit = codes.find(needle);
    if (hit == std::string::npos) return std::nullopt;
    // Each ";" in front of the hit closes one code before it.
    return static_cast<std::int32_t>(std::count(codes.begin(), codes.begin() + static_cast<std::ptrdiff_t>(hit), ';'));
}

std::optional<std::int32_t> StoredFileFormat(std::int32_t application, std::optional<std::int32_t> position) {
    switch (application) {
    case dockind::Word:
        if (position && *position <= kLastClassicWordFormat) return position;
        return std::nullopt;
    case dockind::Excel: {
        if (!position) return std::nullopt;
        if (*position == 0) return 0;  // "Workbook normal"
        const std::vector<std::string> codes = SplitList(kExcelCodes);
        return NumberInFront(codes.at(static_cast<std::size_t>(*position) + 1));
    }
    case dockind::MailBody: return position;
    default: return 0;
    }
}

}  // namespace flowloom::sheets
