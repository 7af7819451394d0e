#pragma once

#include <ombrin/OmSmoothList.h>

namespace gallery {

/// The list of pages at the left of the gallery, under the headings of their groups. The page on
/// show is a tab that opens into the page.
class NavigationList : public ombrin::OmSmoothList
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
