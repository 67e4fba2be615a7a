#pragma once

#include "sheets/SheetHost.h"

#include <cstdint>
#include <string>
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
