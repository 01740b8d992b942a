#include "files/FileListItems.h"

#include "base/ItemAt.h"
#include "files/PathText.h"

namespace ls {

void FileListItems::Show(const std::vector<std::string>& names)
{
    beginResetModel();
    m_names = names;
    endResetModel();
}

int FileListItems::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_names.size());
}

QVariant FileListItems::data(const QModelIndex& at, int role) const
{
    if (!checkIndex(at, CheckIndexOption::IndexIsValid) ||
        (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return PathText(*ItemAt(m_names, at.row()));
}

} // namespace ls
