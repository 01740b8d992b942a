#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class TempForm;
}

namespace ls {

/// The results window: a text to read and copy, and below it what the book check has to say about it.
class TempForm : public QDialog
{
    Q_OBJECT

public:
    /// Both texts are UTF-8, their lines parted by CR LF or "\n".
    TempForm(QWidget* parent, const std::string& text, const std::string& findings);
    ~TempForm() override;

private:
    void CloseButton_Click();

    std::unique_ptr<Ui::TempForm> m_ui;
};

} // namespace ls
