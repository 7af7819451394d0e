#pragma once

#include <ombrin/OmWindow.h>

#include <QtCore/QHash>

class QActionGroup;
class QLabel;
class QMenu;
class QStackedWidget;

namespace gallery {

class NavigationList;
struct GalleryPage;

/// The gallery's window: the list of pages at the left, the page on show at the right.
class GalleryWindow : public ombrin::OmWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);
    ~GalleryWindow() override;

    /// Shows the page called \a name; an unknown name, an empty one too, changes nothing.
    void showPage(const QString &name);

private:
    QWidget *createContents();
    QWidget *createPageHeader();
    void createMenus();
    void createFileMenu();
    void createViewMenu();
    void createWindowMenu();
    void createHelpMenu();
    void createStatusBar();
    QWidget *builtPage(const GalleryPage &page);
    void onPageChosen(const QString &name);
    void takeScreenshots();
    void showAbout();

    NavigationList *m_navigation = nullptr;
    QStackedWidget *m_pages = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_summary = nullptr;
    QLabel *m_position = nullptr;
    QActionGroup *m_pageActions = nullptr;
    QAction *m_screenshots = nullptr;
    QHash<const GalleryPage *, QWidget *> m_built;
};

} // namespace gallery
