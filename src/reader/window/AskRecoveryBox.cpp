#include "reader/window/AskRecoveryBox.h"

#include "base/Messages.h"

#include <QMessageBox>
#include <QPushButton>

namespace ls {

RecoveryChoice AskRecoveryBox(QWidget* window, const std::string& question)
{
    QMessageBox box(window);
    box.setObjectName(QStringLiteral("RecoveryBox"));
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size())));
    box.setText(QString::fromStdString(question));
    box.setIcon(QMessageBox::Question);
    QPushButton* const recover = box.addButton(QStringLiteral("&Recover"), QMessageBox::AcceptRole);
    QPushButton* const discard = box.addButton(QStringLiteral("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* const later = box.addButton(QStringLiteral("&Later"), QMessageBox::RejectRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(later);
    box.exec();
    if (box.clickedButton() == recover) {
        return RecoveryChoice::Recover;
    }
    return box.clickedButton() == discard ? RecoveryChoice::Discard : RecoveryChoice::Later;
}

} // namespace ls
