#include "GalleryPage.h"
#include "PageKit.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

struct Role
{
    QPalette::ColorRole role;
    const char *name;
    QPalette::ColorRole partner; // what it is read on, or what is read on it
    const char *partnerName;
};

constexpr Role kRoles[] = {
        {QPalette::Window, "Window", QPalette::WindowText, "WindowText"},
        {QPalette::WindowText, "WindowText", QPalette::Window, "Window"},
        {QPalette::Button, "Button", QPalette::ButtonText, "ButtonText"},
        {QPalette::ButtonText, "ButtonText", QPalette::Button, "Button"},
        {QPalette::Base, "Base", QPalette::Text, "Text"},
        {QPalette::AlternateBase, "AlternateBase", QPalette::Text, "Text"},
        {QPalette::BrightText, "BrightText", QPalette::Shadow, "Shadow"},
        {QPalette::Text, "Text", QPalette::Base, "Base"},
        {QPalette::Light, "Light", QPalette::WindowText, "WindowText"},
        {QPalette::Midlight, "Midlight", QPalette::WindowText, "WindowText"},
        {QPalette::Dark, "Dark", QPalette::Window, "Window"},
        {QPalette::Mid, "Mid", QPalette::Window, "Window"},
        {QPalette::Shadow, "Shadow", QPalette::Window, "Window"},
        {QPalette::Highlight, "Highlight", QPalette::HighlightedText, "HighlightedText"},
        {QPalette::HighlightedText, "HighlightedText", QPalette::Highlight, "Highlight"},
        {QPalette::Link, "Link", QPalette::Base, "Base"},
        {QPalette::LinkVisited, "LinkVisited", QPalette::Base, "Base"},
};

double linearLight(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linearLight(color.redF()) + 0.7152 * linearLight(color.greenF())
           + 0.0722 * linearLight(color.blueF());
}

/// The contrast ratio of two colours, 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// A patch of one colour.
class Swatch : public QWidget
{
public:
    explicit Swatch(const QColor &color)
        : m_color(color)
    {
        setFixedSize(34, 16);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette().color(QPalette::Dark));
        painter.setBrush(m_color);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    }

private:
    QColor m_color;
};

class PalettePage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(PalettePage)

public:
    PalettePage();

private:
    static QWidget *createTable();
};

PalettePage::PalettePage()
{
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createTable());
    column->addStretch();
}

QWidget *PalettePage::createTable()
{
    struct Group
    {
        QString text;
        QPalette::ColorGroup group;
    };
    const Group groups[] = {{tr("Active"), QPalette::Active},
                            {tr("Inactive"), QPalette::Inactive},
                            {tr("Disabled"), QPalette::Disabled}};
    constexpr int columnsOfGroup = 3; // patch, name, contrast
    const QPalette palette = QApplication::palette();

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    grid->addWidget(caption(tr("Contrast with")), 0, 1);
    for (int index = 0; index < 3; ++index) {
        const int column = 2 + index * columnsOfGroup;
        grid->addWidget(new QLabel(groups[index].text), 0, column, 1, columnsOfGroup);
        grid->setColumnStretch(column + 2, 1);
    }
    int row = 1;
    for (const Role &role : kRoles) {
        grid->addWidget(new QLabel(QString::fromLatin1(role.name)), row, 0);
        grid->addWidget(caption(QString::fromLatin1(role.partnerName)), row, 1);
        for (int index = 0; index < 3; ++index) {
            const int column = 2 + index * columnsOfGroup;
            const QColor color = palette.color(groups[index].group, role.role);
            const double ratio = contrast(color, palette.color(groups[index].group, role.partner));
            grid->addWidget(new Swatch(color), row, column, Qt::AlignCenter);
            grid->addWidget(new QLabel(color.name()), row, column + 1);
            grid->addWidget(caption(QString::number(ratio, 'f', 1)), row, column + 2);
        }
        ++row;
    }
    auto *card = new Card(tr("51 colours"));
    card->body()->addLayout(grid);
    return card;
}

} // namespace

GALLERY_PAGE(PalettePage, "palette", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Palette"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "The colours of the skin, and how well each is told from the one it "
                               "is used with: text needs 4.5."));

} // namespace gallery
