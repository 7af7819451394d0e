#pragma once

#include <QtGui/QFont>
#include <QtWidgets/QWidget>

#include <vector>

class QGridLayout;
class QPainter;

/// \file
/// What the contact sheets of the skin's pictures are built from.

namespace gallery {

/// How a picture is shown on both a light and a dark ground.
enum class Grounds {
    SideBySide, ///< Twice: on light at the left, on dark at the right.
    Stacked,    ///< Twice: on light above, on dark below.
    Split,      ///< Once: over a ground that is half light and half dark.
};

/// One picture of the skin at its own size, with its name below.
///
/// A name that is wider than the grounds is broken after a '_' or '-'. A picture that the skin does
/// not have leaves its grounds empty.
class PictureTile : public QWidget
{
public:
    /// \param name    the picture's name, without ":/"
    /// \param ground  size of one ground, in pixels
    /// \param label   what is written below; nothing if empty
    PictureTile(const QString &name, QSize ground, Grounds grounds, const QString &label,
                QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize groundsSize() const;
    QFont labelFont() const;
    void paintPicture(QPainter *painter, const QRect &ground) const;

    QString m_name;
    QString m_label;
    QSize m_ground;
    Grounds m_grounds;
};

/// A tile with the picture's name below, broken into two lines where \a lines is 2.
PictureTile *namedTile(const QString &name, QSize ground, Grounds grounds, int lines);

/// Rows of named tiles, \a columns in each, over the whole width.
QGridLayout *tileRows(const std::vector<const char *> &names, int columns, QSize ground, int lines);

} // namespace gallery
