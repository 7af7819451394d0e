#pragma once

#include <QtWidgets/QListWidget>

namespace gallery {

/// The list of pages at the left of the gallery, under the headings of their groups.
class NavigationList : public QListWidget
{
    Q_OBJECT

public:
    explicit NavigationList(QWidget *parent = nullptr);

    /// Selects the page called \a name and emits pageChosen(); an unknown name does nothing.
    void choose(const QString &name);

Q_SIGNALS:
    void pageChosen(const QString &name);

private:
    void addHeading(const QString &text);
};

} // namespace gallery
