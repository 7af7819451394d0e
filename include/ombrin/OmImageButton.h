#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace ombrin {

/// A button that is nothing but a picture.
class OMBRIN_GUI_EXPORT OmImageButton : public QWidget
{
    Q_OBJECT

public:
    explicit OmImageButton(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
};

} // namespace ombrin
