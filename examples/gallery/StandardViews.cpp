#include "StandardControls.h"

#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QTreeWidget>

namespace gallery {

namespace {

constexpr int kLowestView = 56;

/// Item views, a text edit and a calendar.
class StandardViews
{
    Q_DECLARE_TR_FUNCTIONS(StandardViews)

public:
    static QWidget *tree();
    static QWidget *table();
    static QWidget *list();
    static QWidget *text();
    static QWidget *calendar();
};

QWidget *StandardViews::tree()
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({tr("Contact"), tr("City")});
    tree->setAlternatingRowColors(true);
    tree->setColumnWidth(0, 110);
    auto *friends = new QTreeWidgetItem(tree, {tr("Friends")});
    auto *ada = new QTreeWidgetItem(friends, {tr("Ada"), tr("London")});
    ada->setCheckState(0, Qt::Checked);
    auto *emmy = new QTreeWidgetItem(friends, {tr("Emmy"), tr("Erlangen")});
    emmy->setCheckState(0, Qt::Unchecked);
    new QTreeWidgetItem(new QTreeWidgetItem(tree, {tr("Family")}), {tr("Max")});
    friends->setExpanded(true);
    tree->setCurrentItem(ada);
    return tree;
}

QWidget *StandardViews::table()
{
    const QString cells[][2] = {
            {tr("Mon"), tr("Call Ada")}, {tr("Tue"), tr("Send files")}, {tr("Wed"), tr("Chat")}};
    auto *table = new QTableWidget(3, 2);
    table->setHorizontalHeaderLabels({tr("Day"), tr("Plan")});
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    table->horizontalHeader()->setSortIndicatorShown(true);
    table->verticalHeader()->setDefaultSectionSize(21);
    table->setColumnWidth(0, 64);
    for (int line = 0; line < 3; ++line) {
        for (int column = 0; column < 2; ++column)
            table->setItem(line, column, new QTableWidgetItem(cells[line][column]));
    }
    table->setCurrentCell(1, 1);
    return table;
}

QWidget *StandardViews::list()
{
    auto *list = new QListWidget;
    const std::pair<const char *, QString> entries[] = {{"chat-16", tr("Chat")},
                                                        {"phone-16", tr("Calls")},
                                                        {"filetransfer-16", tr("Files")},
                                                        {"webfolder-16", tr("Folders")},
                                                        {"block-16", tr("Blocked")}};
    for (const auto &[icon, name] : entries)
        list->addItem(new QListWidgetItem(skinIcon(QLatin1String(icon)), name));
    list->setCurrentRow(1);
    return list;
}

QWidget *StandardViews::text()
{
    auto *text = new QTextEdit;
    text->setPlainText(
            tr("The more I study, the more insatiable do I feel my genius for it to be."));
    return text;
}

QWidget *StandardViews::calendar()
{
    auto *calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2024, 12, 10));
    calendar->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setGridVisible(true);
    return calendar;
}

} // namespace

QWidget *createViewsPanel()
{
    auto *panel = new QWidget;
    QVBoxLayout *column = panelColumn(panel, 10);
    QWidget *tree = StandardViews::tree();
    QWidget *table = StandardViews::table();
    QWidget *list = StandardViews::list();
    QWidget *text = StandardViews::text();
    for (QWidget *view : {tree, table, list, text})
        view->setMinimumSize(40, kLowestView);
    QBoxLayout *pair = controlRow();
    pair->addWidget(list);
    pair->addWidget(text);
    column->addWidget(tree, 5);
    column->addWidget(table, 5);
    column->addLayout(pair, 4);
    column->addWidget(StandardViews::calendar());
    return panel;
}

} // namespace gallery
