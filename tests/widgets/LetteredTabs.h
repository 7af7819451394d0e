#pragma once

#include "support/TestCase.h"

#include <ombrin/OmTabBar.h>
#include <ombrin/OmTabWidget.h>

namespace ombrin::test {

/// A tab widget with a tab for every letter, "A", and a page that is named after it, "a".
class LetteredTabs : public OmTabWidget
{
public:
    explicit LetteredTabs(const QString &letters = QString())
    {
        for (const QChar letter : letters) {
            auto *page = new QLineEdit;
            page->setObjectName(QString(letter.toLower()));
            addTab(page, QString(letter));
        }
        enableDragableTabs(true);
    }

    OmTabBar *bar() const { return qobject_cast<OmTabBar *>(tabBar()); }

    /// "Aa Bb [Cc]": the tabs with their pages, the current one in brackets.
    QString contents() const
    {
        QStringList list;
        for (int i = 0; i < count(); ++i) {
            const QString tab = tabText(i) + widget(i)->objectName();
            list.append(i == currentIndex() ? "[%1]"_q.arg(tab) : tab);
        }
        return list.join(QLatin1Char(' '));
    }
};

} // namespace ombrin::test
