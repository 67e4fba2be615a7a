#pragma once

#include <string_view>

namespace flowloom::access {

// The lists of objects that a database offers.
enum class ObjectList { None, Forms, Tables, Queries, Reports };

// Which list a row of the system table "MSysObjects" belongs to, by its
// column Type: 1 and 6 tables (local and attached), 5 queries, -32768 forms,
// -32764 reports. System and hidden objects are left out by the first four
// characters of their name, compared case-sensitively: "MSys" and "USys" for
// tables, "~sq_" (the queries behind forms and reports) and "USys" for
// queries, "USys" for forms and reports. None for every other row.
ObjectList ClassifyObject(int type, std::string_view name);

}  // namespace flowloom::access
