#pragma once

#include "authoring/EditSource.h"
#include "base/Seams.h"

#include <QDialog>

#include <memory>
#include <string_view>

namespace Ui {
class TxEdForm;
}

namespace ls {

class TextBoxCommands;
struct Book;

/// The text editor for the topic on show, which must be in memory. Done stores the text there.
class TxEdForm : public QDialog, public EditSource
{
    Q_OBJECT

public:
    TxEdForm(QWidget* parent, Book& book, const Seams& seams);
    ~TxEdForm() override;

    void AddRunningEdits(RunningEdits& edits) override;

public Q_SLOTS:
    /// For Escape and the close button: asks before it drops changes.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectButtons();
    void ConnectItems();
    void Form_Load();
    void SaveButton_Click();
    void CancelButton_Click();
    void SymCombo_Click();
    void WrapSelection(std::string_view openTag);
    void InsertAround(const QString& before, const QString& after);

    std::unique_ptr<Ui::TxEdForm> m_ui;
    Book& m_book;
    Seams m_seams;
    std::unique_ptr<TextBoxCommands> m_boxCommands;
};

} // namespace ls
