// The context menus of the canvases: which entries show, with what
// captions and enabled states, for a cell and for the empty part of a strip.
#include "designer/FrmDesignerParts.h"

#include "model/Activities.h"
#include "model/Databases.h"
#include "model/Datasources.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/ReportError.h"

namespace flowloom::designer {

// --- context menus ------------------------------------------------------------------------

void frmDesigner::SetPastePopupEntry(Strip strip) {
    bool enabled = false;
    std::string name;
    if (strip == Strip::Datasource) {
        enabled = mClipboard.TypeName() == "Datasource";
        name = mClipboard.Name();
    } else if (strip == Strip::Activity) {
        const std::string type = mClipboard.TypeName();
        enabled = !mClipboard.Empty() && type != "Datasource" && type != "Process";
        name = type;
    }
    menus_.SetEnabled("mnuPopUpPaste", enabled);
    menus_.SetCaption("mnuPopUpPaste", enabled ? "Paste " + name : "Paste");
}

void frmDesigner::CellContextMenu(Strip strip) {
    const char* procedure = strip == Strip::Database     ? "mDatabaseHtmlDocument_CellContextMenu"
                            : strip == Strip::Datasource ? "mDatasourceHtmlDocument_CellContextMenu"
                                                         : "mActivityHtmlDocument_CellContextMenu";
    Guarded("frmDesigner", procedure, [&] {
        const bool activity = strip == Strip::Activity;
        menus_.SetCaption("mnuPopUpBack", activity ? "Down" : "Right");
        menus_.SetCaption("mnuPopUpForward", activity ? "Up" : "Left");
        for (const char* name : {"mnuPopUpBack", "mnuPopUpForward", "mnuPopUpSep1"}) menus_.SetVisible(name, activity);
        for (const char* name : {"mnuPopUpCopy", "mnuPopUpPaste", "mnuPopUpSep2"})
            menus_.SetVisible(name, strip != Strip::Database);
        SetPastePopupEntry(strip);
        std::int32_t p = 0;
        std::int32_t n = 0;
        switch (strip) {
        case Strip::Database:
            GetSelectedDatabase(p);
            n = Processes_->Databases()->Count();
            break;
        case Strip::Datasource:
            GetSelectedDatasource(p);
            n = mProcess->Datasources()->Count();
            break;
        case Strip::Activity:
            GetSelectedActivity(p);
            n = mProcess->Activities()->Count();
            break;
        }
        // A free slot or a connector selects nothing: no menu then.
        if (p == 0) return;
        menus_.SetEnabled("mnuPopUpBack", p >= 1 && p < n);
        menus_.SetEnabled("mnuPopUpForward", p >= 2 && p <= n);
        menus_.SetEnabled("mnuPopUpDelete", true);
        if (strip != Strip::Database) menus_.SetEnabled("mnuPopUpCopy", true);
        OpenPopup();
    });
}

void frmDesigner::DocumentContextMenu(Strip strip) {
    const char* procedure = strip == Strip::Database     ? "mDatabaseHtmlDocument_DocumentContextMenu"
                            : strip == Strip::Datasource ? "mDatasourceHtmlDocument_DocumentContextMenu"
                                                         : "mActivityHtmlDocument_DocumentContextMenu";
    Guarded("frmDesigner", procedure, [&] {
        for (const char* name : {"mnuPopUpCopy", "mnuPopUpPaste", "mnuPopUpSep2"})
            menus_.SetVisible(name, strip != Strip::Database);
        SetPastePopupEntry(strip);
        for (const char* name : {"mnuPopUpBack", "mnuPopUpForward", "mnuPopUpDelete", "mnuPopUpCopy"})
            menus_.SetEnabled(name, false);
        OpenPopup();
    });
}

}  // namespace flowloom::designer
