#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

namespace ls {

/// The rows of a list of file names. A row's text is made when it is drawn, as a folder may hold many
/// thousands.
class FileListItems : public QAbstractListModel
{
public:
    void Show(const std::vector<std::string>& names);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& at, int role = Qt::DisplayRole) const override;

private:
    std::vector<std::string> m_names;
};

} // namespace ls
