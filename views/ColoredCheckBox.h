#pragma once

#include <QtWidgets/QCheckBox>

namespace ombrin {

/// A check box whose caption has a colour of its own and keeps it: a style sheet takes a widget's
/// own palette away when the widget comes into another window.
class ColoredCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit ColoredCheckBox(QWidget *parent = nullptr);

    void setTextColor(const QColor &color);

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyColor();

    QColor m_color;
};

} // namespace ombrin
