#pragma once

#include <QtWidgets/QApplication>

/// The visible window of the class \a Widget, or null.
template <typename Widget>
Widget *shown()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *found = qobject_cast<Widget *>(widget); found && found->isVisible())
            return found;
    }
    return nullptr;
}
