#include "reader/TopicListItems.h"

#include "base/CodePage.h"

#include <utility>

namespace ls {

void TopicListItems::SetItems(std::vector<TopicListItem> items)
{
    beginResetModel();
    m_items = std::move(items);
    endResetModel();
}

int TopicListItems::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant TopicListItems::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const TopicListItem& item = m_items[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return QString::fromStdString(FromBook(item.text));
    }
    if (role == Qt::UserRole) {
        return item.itemData;
    }
    return {};
}

} // namespace ls
