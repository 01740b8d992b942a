#pragma once

#include "base/Seams.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

class QListWidget;

namespace Ui {
class XrefForm;
}

namespace ls {

struct Book;
struct XrefEntry;

/// The cross-reference view: the topics that the topic on show refers to, those that refer to it, and the
/// note of the selected reference.
class XrefForm : public QDialog
{
    Q_OBJECT

public:
    /// For the topic on show. Go stores the chosen title in `CurrentTopicName`; Close does not change it.
    XrefForm(QWidget* parent, Book& book, const Seams& seams);
    ~XrefForm() override;

private:
    void Form_Load();
    void ConnectControls();
    void ShowNote(const QListWidget& list);
    void ToGoButton_Click();
    void InGoButton_Click();
    void Go(const QListWidget& list, const std::vector<XrefEntry>& entries, const std::string& reminder);

    std::unique_ptr<Ui::XrefForm> m_ui;
    Book& m_book;
    Seams m_seams;
    std::vector<XrefEntry> m_to;
    std::vector<XrefEntry> m_in;
};

} // namespace ls
