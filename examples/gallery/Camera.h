#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace gallery {

class GalleryWindow;
struct GalleryPage;

/// Photographs the gallery's window, active and inactive, at the density this process runs at.
class Camera
{
    Q_DECLARE_TR_FUNCTIONS(Camera)

public:
    /// Saves into \a directory, which must exist.
    explicit Camera(const QString &directory);

    /// Photographs the page called \a page, or every page if it is empty. Returns what went wrong,
    /// or an empty text.
    QString takeAll(const QString &page) const;

private:
    QString take(GalleryWindow *window, const GalleryPage &page) const;
    QString save(GalleryWindow *window, const GalleryPage &page, const QString &activation) const;

    QString m_directory;
};

} // namespace gallery
