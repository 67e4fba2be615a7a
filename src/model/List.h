#pragma once

#include "app/SparseMembers.h"
#include "app/Tracked.h"
#include <memory>
#include <string>
#include <vector>

namespace flowloom {

class Datasource;

// A list of values (mail recipients) from one of three sources that exclude
// one another: a text, an array, or a field of a datasource.
class List {
public:
    // The stored text if not empty, else the array joined with ListSeparator.
    std::string ValueList() const;
    // Stores the text; a non-empty text clears the array and the datasource.
    void SetValueList(std::string text);
    // The stored text alone ("" for an array or a datasource).
    const std::string& StoredText() const noexcept { return text_; }

    const std::string& ListSeparator() const noexcept { return separator_; }
    void SetListSeparator(std::string separator) { separator_ = std::move(separator); }

    const std::vector<std::string>& Values() const noexcept;
    // A non-empty array clears the text and the datasource.
    void SetValues(std::vector<std::string> values);

    std::shared_ptr<flowloom::Datasource> Datasource() const { return datasource_; }
    // A datasource clears the text and the array; none clears FieldName.
    void SetDatasource(std::shared_ptr<flowloom::Datasource> datasource);

    const std::string& FieldName() const noexcept { return fieldName_; }
    void SetFieldName(std::string name) { fieldName_ = std::move(name); }

private:
    TrackedString text_;
    TrackedString separator_ = ";";
    LazyPart<std::vector<std::string>> values_;  // an array is seldom given
    std::shared_ptr<flowloom::Datasource> datasource_;
    SparseString fieldName_;
};

}  // namespace flowloom
