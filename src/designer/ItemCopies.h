#pragma once

#include <memory>

namespace flowloom {
class Activity;
class Datasource;
class Document;
class Process;
}  // namespace flowloom

namespace flowloom::designer {

// Copies made for the window's clipboard: new objects with the members a
// copy carries (not every member: an activity's target folder and file stay
// behind). With `withPrefix`, "Copy of " goes before the name, and before an
// activity's description when it has one.
std::shared_ptr<Datasource> CopyDatasource(const Datasource& source, bool withPrefix);
std::shared_ptr<Document> CopyDocument(const Document& source, bool withPrefix);
// Failures of a member are skipped: a copy may be incomplete rather than fail.
std::shared_ptr<Activity> CopyActivity(const Activity& source, bool withPrefix);
// "Copy of " + name, with copies of its datasources, activities, documents
// and field values; errors are ignored.
std::shared_ptr<Process> CopyProcess(const Process& source);

inline constexpr const char* kCopyPrefix = "Copy of ";

}  // namespace flowloom::designer
