#pragma once

#include "platform/NativeHandle.h"
#include "support/TestCase.h"

namespace ombrin::test {

/// A frameless window as the library's frames are.
class PlainWindow : public QWidget
{
public:
    PlainWindow()
    {
        setWindowFlags(Qt::FramelessWindowHint);
        setGeometry(100, 100, 300, 200);
    }

    NativeWindow::Handle handle()
    {
        winId(); // creates it
        return NativeWindow::handleOf(this);
    }
};

/// Rows with handles that name no window.
inline void addStrangeHandles()
{
    QTest::addColumn<NativeWindow::Handle>("handle");
    const NativeWindow::Handle stale = PlainWindow().handle();
    QTest::newRow("none") << NativeWindow::Handle(0);
    QTest::newRow("window that is gone") << stale;
    QTest::newRow("never a window") << NativeWindow::Handle(-1);
}

inline void callEverythingOn(NativeWindow::Handle handle)
{
    NativeWindow::addSystemBoxes(handle);
    NativeWindow::setMaximizeBox(handle, true);
    NativeWindow::setStayOnTop(handle, true);
    NativeWindow::bringToFront(handle);
    NativeWindow::flash(handle);
}

} // namespace ombrin::test
