// A stand-in for the file form: the toolkit's own dialog behind the same call. It goes, as a whole, when the
// file form comes; nothing else knows of it.

#include "app/Global.h"
#include "base/PathRules.h"
#include "files/FileChooser.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QLayout>

namespace ls {

namespace {

void SetUp(QFileDialog& chooser, const FileDialog& dialog)
{
    const bool opens = dialog.FileMode == "R";
    chooser.setObjectName(QStringLiteral("FileForm"));
    chooser.setOption(QFileDialog::DontUseNativeDialog);
    chooser.setWindowTitle(opens ? QStringLiteral("Lodestar Advisor Open")
                                 : QStringLiteral("Lodestar Advisor Save"));
    chooser.setAcceptMode(opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    chooser.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    chooser.setDirectory(QFile::decodeName(dialog.DefaultFolder.c_str()));
    const QString pattern = QFile::decodeName(dialog.FilePattern.c_str());
    chooser.setNameFilters(
        {QStringLiteral("Books (%1)").arg(pattern), QStringLiteral("All files (*)")}); // in any case
    if (!dialog.InitialFileName.empty()) {
        chooser.selectFile(QFile::decodeName(dialog.InitialFileName.c_str()));
    }
}

} // namespace

void ShowFileForm(QWidget* parent, Global& global, const Seams& seams)
{
    FileDialog& dialog = global.fileDialog;
    dialog.FileFormTitle.clear();
    dialog.ChosenFile.clear();
    dialog.ChosenFullPath.clear();
    dialog.FileFormOK = false;
    QFileDialog chooser(parent);
    SetUp(chooser, dialog);
    auto* lock = new QCheckBox(QStringLiteral("Lock for Editing"), &chooser);
    lock->setObjectName(QStringLiteral("ExclusiveOption"));
    lock->setVisible(dialog.ShowSharing);
    chooser.layout()->addWidget(lock);
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) {
        return;
    }
    if (dialog.ShowSharing) {
        global.book.LockBook = lock->isChecked();
    }
    dialog.ChosenFile = QFile::encodeName(chooser.selectedFiles().first()).toStdString();
    dialog.ChosenFullPath = IsAbsolute(seams.paths, dialog.ChosenFile)
                                ? dialog.ChosenFile
                                : JoinPath(seams.paths, dialog.DefaultFolder, dialog.ChosenFile);
    dialog.FileFormOK = true;
}

} // namespace ls
