#pragma once

#include "common/SkinPictures.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

class QBoxLayout;
class QPushButton;
class QVBoxLayout;

/// \file
/// What the pages of the gallery are built from.

namespace gallery {

using example::skinIcon;
using example::skinPicture;

/// Distances of the gallery's layouts, in pixels.
constexpr int kPageMargin = 16;
constexpr int kCardGap = 12;
constexpr int kSideColumnWidth = 190;

/// A white box with a title and a column of contents.
class Card : public QWidget
{
public:
    explicit Card(const QString &title, QWidget *parent = nullptr);

    /// The column below the title.
    QVBoxLayout *body() const { return m_body; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVBoxLayout *m_body;
};

/// Gives \a page an empty column, or row, of cards with the gallery's margins.
QVBoxLayout *cardColumn(QWidget *page);
/// A row, or column inside a row, of cards without margins of its own.
QBoxLayout *cardStack(Qt::Orientation orientation);

/// A quiet line of text that names what stands beside it.
QLabel *caption(const QString &text, Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter);
/// A quiet paragraph.
QLabel *note(const QString &text);

/// A push button that shows \a statusTip in the window's status bar.
QPushButton *pushButton(const QString &text, const QString &statusTip);

/// Puts \a widget out of reach of mouse and keyboard, so that it keeps the state it is in.
void pinState(QWidget *widget);
/// Pins \a widget as it looks under the mouse.
void pinHovered(QWidget *widget);

} // namespace gallery
