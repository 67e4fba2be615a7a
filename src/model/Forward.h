#pragma once

#include "app/KeyedCollection.h"

#include <memory>

namespace flowloom {

class Processes;
class Process;
class Activity;
class Activities;
class Datasource;
class Datasources;
class Document;
class Documents;
class Group;
class Groups;
class Database;
class Databases;
class FieldValue;
class List;
class Options;
class OptionItem;
class MailMerge;
class SaveAs;
class PrintOut;
class Convert;
class SendMail;
class SendFax;
class AddRecord;

// Field values of a process or an AddRecord, keyed by field name.
using FieldValues = KeyedCollection<FieldValue>;

}  // namespace flowloom
