#pragma once

#include "authoring/EditSource.h"
#include "authoring/Properties.h"
#include "base/Seams.h"

#include <QDialog>

#include <memory>

namespace Ui {
class InfoForm;
}

namespace ls {

struct Book;

/// The properties form: edits the fields of the book's header line. Saving the book writes them to the file.
class InfoForm : public QDialog, public EditSource
{
    Q_OBJECT

public:
    InfoForm(QWidget* parent, Book& book, const Seams& seams);
    ~InfoForm() override;

    void AddRunningEdits(RunningEdits& edits) override;

private:
    void Form_Load();
    void OKBox_Click();
    [[nodiscard]] Properties Entered() const;

    std::unique_ptr<Ui::InfoForm> m_ui;
    Book& m_book;
    Seams m_seams;
};

} // namespace ls
