#pragma once

#include <QtGui/QtGui>

/// Qt reads animations but writes none.
namespace gif_writer {

inline void appendNumber(QByteArray *bytes, int number)
{
    bytes->append(static_cast<char>(number & 0xff)).append(static_cast<char>(number >> 8 & 0xff));
}

/// The codes of an image of \a count pixels of palette entry \a pixel. The table of codes is reset
/// after every second pixel, so that all codes have three bits.
inline QByteArray pixelData(int count, int pixel)
{
    constexpr int kClear = 4;
    constexpr int kEnd = 5;
    QByteArray packed;
    int bits = 0;
    int bitCount = 0;
    const auto put = [&](int code) {
        bits |= code << bitCount;
        bitCount += 3;
        while (bitCount >= 8) {
            packed.append(static_cast<char>(bits & 0xff));
            bits >>= 8;
            bitCount -= 8;
        }
    };
    for (int i = 0; i < count; ++i) {
        if (i % 2 == 0)
            put(kClear);
        put(pixel);
    }
    put(kEnd);
    put(0);
    put(0);

    QByteArray data(1, 2);
    for (qsizetype at = 0; at < packed.size(); at += 255) {
        const QByteArray block = packed.mid(static_cast<int>(at), 255);
        data.append(static_cast<char>(block.size())).append(block);
    }
    return data.append('\0');
}

/// A red, then a blue frame of \a frame's size on a ground of \a screen's size, for ever. Qt does
/// not believe in a ground that is more than ten times as wide or high as the frames.
inline QByteArray animation(const QSize &screen, const QSize &frame)
{
    QByteArray gif("GIF89a");
    appendNumber(&gif, screen.width());
    appendNumber(&gif, screen.height());
    gif.append(QByteArray::fromHex("910000" // four colours
                                   "000000ff00000000ffffffff"));
    gif.append(QByteArray::fromHex("21ff0b")).append("NETSCAPE2.0");
    gif.append(QByteArray::fromHex("0301000000"));
    for (const int pixel : {1, 2}) {
        gif.append(QByteArray::fromHex("21f9040002000000")); // shown for 20 ms
        gif.append(QByteArray::fromHex("2c00000000"));
        appendNumber(&gif, frame.width());
        appendNumber(&gif, frame.height());
        gif.append('\0').append(pixelData(frame.width() * frame.height(), pixel));
    }
    return gif.append(';');
}

} // namespace gif_writer
