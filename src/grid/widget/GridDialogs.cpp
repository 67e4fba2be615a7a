#include "grid/widget/GridDialogs.h"

#include "support/VbStrings.h"
#include "grid/widget/GridColors.h"

#include <QFileDialog>
#include <QFontDialog>

namespace flowloom::grid {

namespace {

constexpr std::int32_t kFileMustExist = 0x1000;

class QtGridDialogs : public GridDialogs {
public:
    explicit QtGridDialogs(QWidget* parent) : parent_(parent) {}

    std::optional<std::string> OpenFile(const FileDialogRequest& request) override {
        QFileDialog dialog(parent_, QString::fromStdString(request.title));
        dialog.setNameFilter(QString::fromStdString(QtFilterFromPipes(request.filter)));
        dialog.setFileMode((request.flags & kFileMustExist) ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
        if (!request.fileName.empty()) dialog.selectFile(QString::fromStdString(request.fileName));
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
        return dialog.selectedFiles().front().toStdString();
    }

    std::optional<FontValue> ChooseFont(const FontValue& initial, std::int32_t, const std::string& title) override {
        bool ok = false;
        const QFont chosen = QFontDialog::getFont(&ok, ToQFont(initial), parent_, QString::fromStdString(title));
        if (!ok) return std::nullopt;
        return FromQFont(chosen);
    }

    std::optional<std::string> BrowseFolder(const std::string& title, const std::string& initial) override {
        const QString folder = QFileDialog::getExistingDirectory(parent_, QString::fromStdString(title), QString::fromStdString(initial));
        if (folder.isEmpty()) return std::nullopt;
        return folder.toStdString();
    }

private:
    QWidget* parent_;
};

// "All Files (*.*)" keeps its text without the parenthesised pattern, which
// is put back from the pattern half of the pair.
std::string FilterText(const std::string& text) {
    const std::size_t open = text.rfind(" (");
    return open != std::string::npos && !text.empty() && text.back() == ')' ? text.substr(0, open) : text;
}

}  // namespace

std::string QtFilterFromPipes(const std::string& filter) {
    const std::vector<std::string> parts = vb::Split(filter, "|");
    std::vector<std::string> filters;
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2)
        filters.push_back(FilterText(parts[i]) + " (" + vb::Replace(parts[i + 1], ";", " ") + ")");
    return vb::Join(filters, ";;");
}

std::unique_ptr<GridDialogs> MakeQtGridDialogs(QWidget* parent) { return std::make_unique<QtGridDialogs>(parent); }

}  // namespace flowloom::grid
