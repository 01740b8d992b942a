#pragma once

#include "advisor/AdvisorTables.h"
#include "authoring/TopicFlags.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "files/FileDialog.h"
#include "reader/settings/Settings.h"
#include "render/print/PrintSettings.h"

namespace ls {

/// The state that the rooms share. The program has one instance; code that needs a part gets a reference to
/// it.
struct Global
{
    ProgramEnd end;
    Book book;
    Settings settings;
    AdvisorTables advisor;
    FileDialog fileDialog;
    TopicFlags topicFlags;
    PrintSettings print;
};

} // namespace ls
