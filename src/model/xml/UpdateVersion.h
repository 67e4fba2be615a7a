#pragma once

namespace flowloom {

class Processes;

// Brings a file of an older format version up to the current one in the
// model. Version 0 kept a mail's text in its SendMail; version 1 makes that
// text a template merged by a MailMerge before the SendMail. True when the
// model was converted; versions other than 0 are left alone.
bool UpdateVersion(Processes& processes);
bool ConvertVersion0To1(Processes& processes);

}  // namespace flowloom
