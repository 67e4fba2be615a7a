#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace flowloom {

class Document;
class Process;

// The input document of an activity: the one held, else the document of
// that name in the process (kept once found). With an error number, a
// document that does not resolve raises that error; with 0 the result is
// simply empty. A failed resolve is never cached.
std::shared_ptr<Document> ResolveInputDocument(std::shared_ptr<Document>& held, const std::string& name,
                                               const std::shared_ptr<Process>& process, std::int32_t errorNumber);

// Keeps the process's documents in step when an activity's output document
// is renamed: the document of the old name is taken out, renamed and put
// back under the new name (so it stays the same object), or a new document
// is added. Nothing happens when the names differ only in case or when the
// process is unknown; a failure leaves the documents as they are (the
// caller stores the new name all the same).
void RenameOutputDocument(const std::shared_ptr<Process>& process, const std::string& oldName,
                          const std::string& newName);

// Adds a document of this name to the process's documents; an existing one
// is left alone.
void AddDocumentNamed(const std::shared_ptr<Process>& process, const std::string& name);

}  // namespace flowloom
