#pragma once

#include "base/FormSeams.h"
#include "base/Seams.h"

#include <QDialog>

#include <memory>

namespace Ui {
class PrtForm;
}

namespace ls {

struct Book;
struct PrintSettings;

/// The print dialog: printer, paper, type size and colour. It sets up the current printer and the settings.
/// `PrintConfirmed` is set if the user leaves it with its print button.
class PrtForm : public QDialog
{
    Q_OBJECT

public:
    PrtForm(QWidget* parent, PrintSettings& settings, const Book& book, const Seams& seams,
            const FormSeams& forms);
    ~PrtForm() override;

private:
    void Form_Load();
    void PrinterCombo_Click();
    void OKButton_Click();
    void HelpButton_Click();

    std::unique_ptr<Ui::PrtForm> m_ui;
    PrintSettings& m_settings;
    const Book& m_book;
    Seams m_seams;
    FormSeams m_forms;
};

} // namespace ls
