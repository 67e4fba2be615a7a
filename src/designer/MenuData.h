#pragma once

#include <string>
#include <vector>

namespace flowloom::designer {

// One entry of the menu bar, of a sub-menu or of the context menu: its name
// (what the handlers dispatch on), its caption with the "&" of its access
// key, and the state its menu's enabling rule left it in.
struct MenuEntry {
    std::string name;
    std::string caption;
    std::string parent;  // the menu that holds it; "" for the menu bar
    bool separator = false;
    bool enabled = true;
    bool visible = true;
};

// The menus of the designer window as data, in their order. The window
// builds its menu bar from it; the enabling rules change it when a menu opens.
class MenuBar {
public:
    MenuBar();  // the designer's menus with their initial state

    const std::vector<MenuEntry>& Entries() const noexcept { return entries_; }
    // nullptr for an unknown name.
    MenuEntry* Find(const std::string& name);
    const MenuEntry* Find(const std::string& name) const;
    // The entries a menu holds, in order.
    std::vector<const MenuEntry*> Children(const std::string& menu) const;
    // Whether the entry holds entries of its own (a menu or a sub-menu).
    bool IsMenu(const std::string& name) const;
    // The menus from the menu bar down to the one that holds the entry.
    std::vector<std::string> PathTo(const std::string& name) const;

    void SetEnabled(const std::string& name, bool enabled);
    void SetVisible(const std::string& name, bool visible);
    void SetCaption(const std::string& name, std::string caption);

private:
    std::vector<MenuEntry> entries_;
};

// One button of the toolbar, by its 1-based index.
struct ToolbarButton {
    int index = 0;
    std::string caption;
    std::string key;
    std::string toolTip;
    std::string imageKey;  // the picture; "" for a separator
    bool separator = false;
};

// The sixteen buttons, separators included, in order.
const std::vector<ToolbarButton>& ToolbarButtons();

}  // namespace flowloom::designer
