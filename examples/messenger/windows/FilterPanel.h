#pragma once

#include "model/ContactFilter.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace ombrin {
class OmCheckBoxAssortmentItem;
class OmCheckBoxAssortmentView;
class OmSearchField;
} // namespace ombrin

namespace messenger {

/// A search field and two boxes of check boxes, which choose the contacts to be shown.
class FilterPanel : public QWidget
{
    Q_OBJECT

public:
    FilterPanel(const ContactFilter &filter, const QStringList &groups, QWidget *parent = nullptr);
    ~FilterPanel() override;

    const ContactFilter &filter() const { return m_filter; }
    /// Offers \a groups, of which those that were unchecked stay so.
    void setGroups(const QStringList &groups);
    /// Folds the boxes out or away.
    void setUnfolded(bool unfolded);
    /// Folds all boxes out, or away if they are.
    void toggle();
    void focusSearch();

Q_SIGNALS:
    void filterChanged(const messenger::ContactFilter &filter);
    /// The user has written the words to search for.
    void searched();

private:
    ombrin::OmCheckBoxAssortmentView *createBox(const QString &title);
    void createPresences();
    void onPresenceChanged(const ombrin::OmCheckBoxAssortmentItem *item);
    void onGroupChanged(const ombrin::OmCheckBoxAssortmentItem *item);

    ContactFilter m_filter;
    ombrin::OmSearchField *m_search;
    ombrin::OmCheckBoxAssortmentView *m_presences;
    ombrin::OmCheckBoxAssortmentView *m_groups;
};

} // namespace messenger
