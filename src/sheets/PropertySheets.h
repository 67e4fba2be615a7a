#pragma once

#include "sheets/SheetHost.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace flowloom::grid {
class Properties;
class Property;
}  // namespace flowloom::grid

namespace flowloom::sheets {

// Sheet kinds: the item type codes (1 Process, 6 Database, 8 Datasource,
// 10 to 16 the activities).
inline constexpr int kProcessSheet = 1;
inline constexpr int kDatabaseSheet = 6;
inline constexpr int kDatasourceSheet = 8;

// "Process", "Database", "Datasource", "MailMerge", ... for a kind; "" for
// any other number. The first half of a row's help key.
std::string SheetKindName(int kind);

// Clears `rows` and adds the rows of the kind in their fixed order, each
// with its caption, type, tag, list and default, then loads the values of
// the selected object into them. Activity kinds begin with "Description".
// A kind without a sheet leaves the rows empty. Failures of the value
// loading are reported and the rest of the sheet is still filled.
void BuildSheet(int kind, SheetHost& host, grid::Properties& rows);

// An edit committed in the grid: the change handler of the sheet on show
// (`sheetTag`, the kind as text) takes the text to the model. False when
// the edit is refused; `sNewValue` may come back changed. A failure is
// reported under the handler's name and refuses the edit. A tag that names
// no sheet accepts the edit and changes nothing.
bool ValueChanged(const std::string& sheetTag, SheetHost& host, grid::Properties& rows, grid::Property& row,
                  std::string& sNewValue);

// A key pressed in the grid's edit box: Delete on the "Body" row of a
// SendMail sheet empties the body at once.
void KeyDownEdit(int kind, int keyCode, SheetHost& host, grid::Property* selected);

// What the "Body" row shows of a mail body: "(HTML)", "(Plain Text)", or a
// body that is one field reference as it stands.
std::string BodyShownText(const std::string& body);
// Whether the text is one field reference, "[Field:...]", on one line.
bool IsFieldReference(std::string_view text);

// The catalogue key of a row's help text: kind name, a point, the row's tag.
std::string HelpKey(int kind, const grid::Property& row);

// What a row with custom data shows instead of its value ("(None)",
// "(Data)", "(Attachments)", "(List)").
std::string QueryCustomDataText(const grid::Property& row, const SheetHost& host);

// The entries of a list computed on demand (the datasource's object names,
// the tables of an AddRecord); `items` stays as it is for other rows.
void NeedData(int kind, const grid::Property& row, SheetHost& host, std::vector<std::string>& items);

// Whether the browse button floats over this row ("FieldValues", "Attachments").
bool ShowsBrowseButton(const grid::Property& row);

// The lists the sheets offer.
std::vector<std::string> GetDatasourceNames(const SheetHost& host);
// With includeCurrent, "CurrentDatabase" first; names joined with ";" and
// split again, so that a name holding ";" splits.
std::vector<std::string> GetDatabaseList(const SheetHost& host, bool includeCurrent);

}  // namespace flowloom::sheets
