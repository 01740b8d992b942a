#pragma once

#include "advisor/AdvisorTables.h"
#include "authoring/TopicFlags.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "files/FileDialog.h"
#include "reader/settings/Settings.h"
#include "render/print/PrintSettings.h"

namespace ls {

/// The state that the rooms share. One instance lives in the program; whoever needs a part is handed it by
/// reference.
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
