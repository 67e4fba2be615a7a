#include "support/VbError.h"

#include <exception>
#include <new>

namespace flowloom {

VbError::VbError(std::int32_t number, std::string description, std::string source,
                 std::string helpFile, std::int32_t helpContext)
    : std::runtime_error(description),
      number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      helpFile_(std::move(helpFile)),
      helpContext_(helpContext) {}

std::string StandardErrorText(std::int32_t number) {
    switch (number) {
    case vberr::InvalidProcedureCall: return "Invalid procedure call or argument";
    case vberr::Overflow: return "Overflow";
    case 7: return "Out of memory";
    case vberr::SubscriptOutOfRange: return "Subscript out of range";
    case vberr::TypeMismatch: return "Type mismatch";
    case vberr::InternalError: return "Internal error";
    case 52: return "Bad file name or number";
    case vberr::FileNotFound: return "File not found";
    case 57: return "Device I/O error";
    case 61: return "Disk full";
    case 70: return "Permission denied";
    case 75: return "Path/File access error";
    case vberr::PathNotFound: return "Path not found";
    case vberr::ObjectRequired: return "Object variable or With block variable not set";
    case vberr::InvalidPropertyValue: return "Invalid property value";
    case vberr::DuplicateKey: return "This key is already associated with an element of this collection";
    default: return "Application-defined or object-defined error";
    }
}

void RaiseStandardError(std::int32_t number, const std::string& source) {
    throw VbError(number, StandardErrorText(number), source);
}

VbError PendingError() {
    try {
        throw;
    } catch (const VbError& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return VbError(7, StandardErrorText(7));
    } catch (const std::exception& e) {
        return VbError(vberr::InternalError, e.what());
    } catch (...) {
        return VbError(vberr::InternalError, StandardErrorText(vberr::InternalError));
    }
}

}  // namespace flowloom
