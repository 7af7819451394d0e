#include "Camera.h"

#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "common/WindowCamera.h"

#include <QtGui/QCursor>

namespace gallery {

namespace {

constexpr QSize kPictureSize(960, 640);
constexpr QPoint kWindowPosition(40, 40);

} // namespace

Camera::Camera(const QString &directory)
    : m_directory(directory)
{}

QString Camera::takeAll(const QString &page) const
{
    QCursor::setPos(0, 0); // outside the window: nothing is hovered
    GalleryWindow window;
    window.resize(kPictureSize);
    window.move(kWindowPosition);
    window.show();
    for (const GalleryPage *candidate : allPages()) {
        if (!page.isEmpty() && candidate->nameText() != page)
            continue;
        const QString error = take(&window, *candidate);
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

QString Camera::take(GalleryWindow *window, const GalleryPage &page) const
{
    window->showPage(page.nameText());
    if (!example::activate(window, window, true))
        return tr("The gallery's window does not become active.");
    const QString error = save(window, page, QStringLiteral("active"));
    if (!error.isEmpty())
        return error;

    // A window of its own that takes the activation: the only way to look like any inactive window.
    QWidget other(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    other.setGeometry(0, 0, 8, 8);
    if (!example::activate(&other, window, false))
        return tr("The gallery's window does not become inactive.");
    return save(window, page, QStringLiteral("inactive"));
}

QString Camera::save(GalleryWindow *window, const GalleryPage &page,
                     const QString &activation) const
{
    const QString name = QStringLiteral("%1-%2").arg(page.nameText(), activation);
    const QString failed = example::photograph(window, m_directory, name);
    return failed.isEmpty() ? QString() : tr("The picture '%1' cannot be saved.").arg(failed);
}

} // namespace gallery
