#include "model/xml/CProcessesXMLDoc.h"

namespace flowloom {

pugi::xml_node CProcessesXMLDoc::ActivityFragment(const Activity& activity, pugi::xml_node parent) {
    PugiXmlSink sink(parent);
    WriteActivity(activity, sink);
    return parent.last_child();
}

}  // namespace flowloom
