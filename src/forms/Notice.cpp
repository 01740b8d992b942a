#include "forms/Notice.h"

#include "base/Messages.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace ls {

void ShowNotice(QWidget* window, const std::string& text)
{
    QWidget* const form = QApplication::activeModalWidget(); // a modal form lets no other window take clicks
    auto* const box = new QMessageBox(form != nullptr ? form : window);
    box->setObjectName(QStringLiteral("NoticeBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAttribute(Qt::WA_ShowWithoutActivating);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(QString::fromUtf8(AppTitle.data(), static_cast<qsizetype>(AppTitle.size())));
    box->setText(QString::fromStdString(text));
    box->setIcon(QMessageBox::Warning);
    box->setStandardButtons(QMessageBox::Ok);
    box->button(QMessageBox::Ok)->setText(QStringLiteral("&OK")); // the same letter on every desktop
    box->setWindowModality(Qt::NonModal);
    box->show();
}

} // namespace ls
