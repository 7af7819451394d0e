#include "contacts/GifWriter.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmAvatar.h>
#include <ombrin/OmFaderWidget.h>

using namespace ombrin;
using namespace ombrin::test;

namespace {

constexpr QSize kSize(60, 40);

QLabel *labelOf(const OmAvatar &avatar)
{
    return avatar.findChild<QLabel *>();
}

// A file of its own for every picture: Qt remembers pictures by their files' names.
class File : public QTemporaryFile
{
public:
    explicit File(const QByteArray &contents)
    {
        if (open())
            write(contents);
        close();
    }
};

QByteArray encoded(const char *format)
{
    QImage image(200, 150, QImage::Format_RGB32);
    for (int i = 0; i < 200 * 150; ++i)
        image.setPixel(i % 200, i / 200, qRgb(i % 200, i / 200, i % 256));
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

OmAvatar *shownAvatar()
{
    auto *const avatar = new OmAvatar(flatPixmap(kSize, Qt::red));
    avatar->move(100, 100);
    avatar->show();
    return avatar;
}

} // namespace

class tst_OmAvatar : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFramelessPopupOfThePicturesSize_data()
    {
        const auto row = columns<QPixmap, QSize>("pixmap", "size");
        QPixmap dense = flatPixmap(kSize, Qt::red);
        row("picture", dense, {62, 42});
        dense.setDevicePixelRatio(2);
        row("dense picture", dense, {32, 22});
        row("null", QPixmap(), {2, 2});
    }

    void isAFramelessPopupOfThePicturesSize()
    {
        QFETCH(QPixmap, pixmap);
        QFETCH(QSize, size);
        QWidget parent;
        OmAvatar avatar(pixmap, &parent);
        QCOMPARE(avatar.parentWidget(), &parent);
        QVERIFY(!avatar.isVisible());
        QCOMPARE(avatar.windowFlags(), Qt::Popup | Qt::FramelessWindowHint);
        QVERIFY(avatar.testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(avatar.size(), size);
        const QLabel *const label = labelOf(avatar);
        const QRect picture(QPoint(1, 1), size - QSize(2, 2));
        QCOMPARE(label->geometry(), picture);
        const QImage image = avatar.grab().toImage();
        for (int x = 0; x < image.width(); ++x) {
            for (const int y : {0, 1, size.height() - 2, size.height() - 1})
                QCOMPARE(image.pixelColor(x, y) == QColor(Qt::red), picture.contains(x, y));
        }
        QCOMPARE(label->frameShape(), QFrame::Box);
        QCOMPARE(label->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(avatar.layout()->contentsMargins(), QMargins());

        avatar.setAttribute(Qt::WA_DeleteOnClose, false);
        avatar.show();
        QCOMPARE(avatar.size(), size);
        QCOMPARE(label->geometry(), QRect(QPoint(0, 0), size));
    }

    // Else the paints of a fade pile up there.
    void groundShowsBehindTransparentPictures()
    {
        OmAvatar avatar(flatPixmap(kSize, Qt::transparent));
        QPixmap target = flatPixmap(avatar.size(), Qt::green);
        avatar.render(&target, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(target.toImage().pixelColor(30, 20), avatar.palette().color(QPalette::Window));
    }

    void fadesAwayAndDeletesItself_data()
    {
        const auto row = columns<int, QPoint, int>("button", "place", "clicks");
        row("left button", Qt::LeftButton, {10, 10}, 1);
        row("right button", Qt::RightButton, {10, 10}, 0);
        row("outside", Qt::LeftButton, {62, 10}, 0);
        row("mouse leaves", Qt::NoButton, {}, 0);
    }

    void fadesAwayAndDeletesItself()
    {
        QFETCH(int, button);
        QFETCH(QPoint, place);
        QFETCH(int, clicks);
        const QPointer<OmAvatar> avatar = shownAvatar();
        QSignalSpy clicked(avatar, &OmAvatar::clicked);
        // More than once: each starts a fade, and the first to end closes the avatar.
        for (int time = 0; time < 2; ++time) {
            if (button == Qt::NoButton)
                sendLeave(avatar);
            else
                QTest::mouseRelease(avatar, Qt::MouseButton(button), Qt::NoModifier, place);
        }
        QVERIFY(avatar->isVisible());
        QCOMPARE(avatar->findChildren<OmFaderWidget *>().size(), 2);
        QCOMPARE(clicked.size(), 2 * clicks);
        QVERIFY(waitFor([&] { return avatar.isNull(); }));
    }

    void hostMayDeleteItAsItIsClicked()
    {
        const QPointer<OmAvatar> avatar = shownAvatar();
        connect(avatar, &OmAvatar::clicked, this, [&avatar] { delete avatar; });
        QTest::mouseRelease(avatar, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QVERIFY(!avatar);
    }

    void damagedFilesAreHarmless()
    {
        expectWarning(".*"_q); // the decoders' own
        for (const QByteArray &contents :
             {gif_writer::animation(QSize(30, 20), QSize(30, 20)), encoded("jpg"), encoded("png"),
              QByteArray("This is no picture."), QByteArray()}) {
            const File truncated(contents.left(contents.size() / 2));
            OmAvatar avatar(truncated.fileName());
            QVERIFY(avatar.width() >= 2 && avatar.width() <= 202);
            QVERIFY(!avatar.grab().isNull());
            QCoreApplication::processEvents();
        }
    }

    // Qt reads the size off the frames, but takes memory for the screen.
    void picturesThatClaimAnEnormousScreenAreNotDecoded()
    {
        QByteArray gif = gif_writer::animation(QSize(30, 20), QSize(30, 20));
        for (const int highByte : {7, 9})
            gif[highByte] = char(0xf8);
        const File file(gif);
        const OmAvatar avatar(file.fileName());
        QCOMPARE(avatar.size(), QSize(2, 2));
    }

    void showsPictureFiles()
    {
        const File file(encoded("png"));
        const OmAvatar avatar(file.fileName());
        QCOMPARE(avatar.size(), QSize(202, 152));
        QVERIFY(!labelOf(avatar)->movie());
        QCOMPARE(labelOf(avatar)->pixmap(Qt::ReturnByValue).toImage().pixel(7, 9),
                 qRgb(7, 9, (9 * 200 + 7) % 256));
    }

    void playsAnimations()
    {
        // Those that are too large do not keep all frames.
        for (const auto &[size, cacheMode] :
             {std::pair(QSize(30, 20), QMovie::CacheAll), {QSize(4096, 2100), QMovie::CacheNone}}) {
            const File file(gif_writer::animation(size, size.boundedTo(QSize(410, 210))));
            auto avatar = std::make_unique<OmAvatar>(file.fileName());
            QCOMPARE(avatar->size(), size + QSize(2, 2));
            QVERIFY(labelOf(*avatar)->autoFillBackground());
            const QPointer<QMovie> movie = labelOf(*avatar)->movie();
            QVERIFY(movie);
            QCOMPARE(movie->state(), QMovie::Running);
            QCOMPARE(movie->cacheMode(), cacheMode);
            const QColor first = movie->currentImage().pixelColor(5, 5);
            QVERIFY(waitFor([&] { return movie->currentImage().pixelColor(5, 5) != first; }));
            avatar.reset();
            QVERIFY(!movie);
        }
    }
};

OMBRIN_TEST_MAIN(tst_OmAvatar)
#include "tst_omavatar.moc"
