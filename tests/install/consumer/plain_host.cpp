// A program that knows nothing of the library and is started in its style.
//
//   plain_host COLOUR    what the skin calls Window, or "none" where there is no skin

#include "expect.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QStyle>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString color = application.arguments().value(1);
    const bool hasSkin = color != QLatin1String("none");

    expect(application.style()->inherits("ombrin::OmStyle2"), "the style is the plug-in's");
    expect(QFile::exists(QStringLiteral(":/combobox_arrow_normal")) == hasSkin,
           "the skin's pictures are registered");
    const QColor window = QApplication::palette().color(QPalette::Window);
    expect(window.isValid() && (!hasSkin || window == QColor(color)), "the colours are the skin's");

    QPalette own;
    own.setColor(QPalette::Base, Qt::darkGreen);
    QApplication::setPalette(own);
    expect(QApplication::palette().color(QPalette::Base) == QColor(Qt::darkGreen)
                   && QApplication::palette().color(QPalette::Window) == window,
           "a colour that the program chooses stays, among the skin's");

    QComboBox box;
    box.show();
    QApplication::processEvents();
    const QImage picture = box.grab().toImage();
    expect(picture.pixelColor(3, box.height() / 2) == QColor(Qt::darkGreen), "the box is painted");
    return succeeded() ? 0 : 1;
}
