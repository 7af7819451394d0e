#include "windows/WindowMemory.h"

#include "model/StateFile.h"

#include <ombrin/OmDesktop.h>
#include <ombrin/vhutilities.h>

#include <QtCore/QEvent>
#include <QtCore/QJsonArray>
#include <QtCore/QRandomGenerator>

namespace messenger {

namespace {

constexpr int kSettledMs = 300;
constexpr int kLargestShift = 50;

int randomShift()
{
    return QRandomGenerator::global()->bounded(-kLargestShift, kLargestShift);
}

QString stateKey()
{
    return QStringLiteral("windows");
}

QRect toRect(const QJsonArray &numbers)
{
    if (numbers.size() != 4)
        return QRect();
    return QRect(numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(),
                 numbers.at(3).toInt());
}

} // namespace

WindowMemory::WindowMemory(QWidget *window, const QString &name, const QSize &size,
                           const QPoint &offset, StateFile *state)
    : QObject(window)
    , m_window(window)
    , m_name(name)
    , m_state(state)
{
    const QRect area = toRect(state->value(stateKey()).toObject().value(name).toArray());
    if (area.isValid()) {
        // The screen it was on may be gone.
        window->setGeometry(ombrin::vhutilities::ensureVisibilityOfArea(area));
    } else {
        window->resize(size);
        ombrin::OmDesktop::setCentered(window);
        // Windows of several copies should not hide each other.
        window->move(window->pos() + offset + QPoint(randomShift(), randomShift()));
    }
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &WindowMemory::save);
    window->installEventFilter(this);
}

WindowMemory::~WindowMemory() = default;

bool WindowMemory::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        m_timer.start(kSettledMs);
    else if (event->type() == QEvent::Close && m_timer.isActive())
        save();
    return QObject::eventFilter(watched, event);
}

void WindowMemory::save()
{
    m_timer.stop();
    if (m_window->isMaximized() || m_window->isMinimized())
        return;
    const QRect area = m_window->geometry();
    QJsonObject windows = m_state->value(stateKey()).toObject();
    windows.insert(m_name, QJsonArray{area.x(), area.y(), area.width(), area.height()});
    m_state->setValue(stateKey(), windows);
}

} // namespace messenger
