#pragma once

#include "grid/GridTypes.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace flowloom::grid {

// What a file row's button asks of the open dialog.
struct FileDialogRequest {
    std::string filter;  // "text|pattern|text|pattern"
    std::int32_t flags = 0;
    std::string title;
    std::string fileName;
};

// The dialogs behind the buttons of file, font and folder rows. An empty
// result means the user cancelled. Tests replace the Qt dialogs with their own.
class GridDialogs {
public:
    virtual ~GridDialogs() = default;
    virtual std::optional<std::string> OpenFile(const FileDialogRequest& request) = 0;
    virtual std::optional<FontValue> ChooseFont(const FontValue& initial, std::int32_t flags, const std::string& title) = 0;
    virtual std::optional<std::string> BrowseFolder(const std::string& title, const std::string& initial) = 0;
};

std::unique_ptr<GridDialogs> MakeQtGridDialogs(QWidget* parent);

// "Text (*.txt)|*.txt|All|*.*" as Qt's "Text (*.txt);;All (*.*)".
std::string QtFilterFromPipes(const std::string& filter);

}  // namespace flowloom::grid
