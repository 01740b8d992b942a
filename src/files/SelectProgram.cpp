#include "files/SelectProgram.h"

#include "files/FileDialog.h"
#include "files/OpenForm.h"

namespace ls {

std::string SelectProgram(QWidget* parent, const Seams& seams, const FormSeams& forms,
                          const std::string& workDir, const std::string& startPath)
{
    FileDialog dialog; // not the caller's dialog, whose form may be open
    dialog.FileMode = "R";
    dialog.ChosenFullPath = startPath;
    OpenForm(parent, dialog, seams, forms.volumes, workDir).exec();
    return dialog.ChosenFullPath;
}

} // namespace ls
