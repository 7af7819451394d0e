#pragma once

#include "support/TestCase.h"

#include <memory>

Q_DECLARE_METATYPE(QStyle::PrimitiveElement)
Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyle::SubControl)

namespace ombrin::test {

constexpr QStyle::State kEnabled = QStyle::State_Enabled;
constexpr QStyle::State kHover = QStyle::State_MouseOver;

/// A palette in which no two roles and no two groups share a colour.
inline QPalette distinctPalette()
{
    QPalette palette;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const QColor color =
                    QColor::fromHsv((role * 37) % 360, 60 + role * 5, 150 + group * 30);
            palette.setColor(QPalette::ColorGroup(group), QPalette::ColorRole(role),
                             QColor(color.rgb()));
        }
    }
    palette.setCurrentColorGroup(QPalette::Inactive);
    return palette;
}

/// What \a draw paints on a ground that it is not likely to paint itself.
template <typename Draw>
QImage painted(const Draw &draw, QSize size = QSize(64, 48), qreal density = 1)
{
    QImage image(size * density, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    image.fill(qRgb(250, 235, 215));
    QPainter painter(&image);
    draw(&painter);
    painter.end();
    return image;
}

/// The same, by a painter with settings that must be left as they are.
template <typename Draw>
QImage paintedKeepingSettings(const Draw &draw, QSize size = QSize(64, 48))
{
    const auto checked = [&draw](QPainter *painter) {
        const QPen pen(Qt::red, 3);
        const QBrush brush(Qt::green);
        painter->setPen(pen);
        painter->setBrush(brush);
        const QPainter::RenderHints hints = painter->renderHints();
        draw(painter);
        QCOMPARE(painter->pen(), pen);
        QCOMPARE(painter->brush(), brush);
        QCOMPARE(painter->transform(), QTransform());
        QCOMPARE(painter->renderHints(), hints);
    };
    return painted(checked, size);
}

inline QImage blank(QSize size = QSize(64, 48))
{
    return painted([](QPainter *) {}, size);
}

/// An option of type \a Option as a widget would fill it in.
template <typename Option>
Option makeOption(const QRect &rect, QStyle::State state = QStyle::State_Enabled)
{
    Option option;
    option.rect = rect;
    option.state = state;
    option.palette = distinctPalette();
    return option;
}

/// Stands above a style, as a style sheet does, and notes which primitives are drawn through it.
class RecordingStyle : public QProxyStyle
{
public:
    struct Primitive
    {
        PrimitiveElement element;
        QRect rect;
        State state;
    };

    explicit RecordingStyle(QStyle *below)
        : QProxyStyle(below)
    {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override
    {
        m_primitives.append({element, option->rect, option->state});
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    const QVector<Primitive> &primitives() const { return m_primitives; }

private:
    mutable QVector<Primitive> m_primitives;
};

} // namespace ombrin::test
