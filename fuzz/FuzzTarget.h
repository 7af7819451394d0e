#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstddef>
#include <cstdint>

/// \file
/// What the fuzz targets share. A target is one source file with one OMBRIN_FUZZ_TARGET().

namespace ombrin::fuzz {

/// The bytes of one run, taken from the front. When they are used up there come zeros and empty
/// texts, so that a target needs to ask isEmpty() only in its loops.
class Input
{
public:
    Input(const uint8_t *bytes, std::size_t size)
        : m_bytes(QByteArray::fromRawData(reinterpret_cast<const char *>(bytes),
                                          static_cast<int>(size)))
    {}

    bool isEmpty() const { return m_position >= m_bytes.size(); }
    int byte() { return isEmpty() ? 0 : static_cast<uchar>(m_bytes[m_position++]); }
    /// From 0 to \a count - 1.
    int choice(int count) { return byte() % count; }
    /// From -128 to 127, or now and then one at the edge of what an int holds.
    int number();
    /// What stands before the next line end, which is taken too.
    QByteArray line();
    QString text() { return QString::fromUtf8(line()); }
    QByteArray rest();

private:
    const QByteArray m_bytes;
    int m_position = 0;
};

/// The application of a target, made on first use: offscreen, silent, with folders of its own that
/// vanish with it.
QApplication &application();

/// A folder for files of this process.
const QTemporaryDir &folder();

/// Puts \a contents into the file \a path.
void writeFile(const QString &path, const QByteArray &contents);

/// Runs what is due: posted events, deferred deletions and timers that have run out.
void runEvents();

[[noreturn]] void fail(const char *condition, const char *file, int line);

} // namespace ombrin::fuzz

/// Ends the target as a crash would if \a condition does not hold.
#define FUZZ_CHECK(condition)                                                                      \
    do {                                                                                           \
        if (!(condition))                                                                          \
            ombrin::fuzz::fail(#condition, __FILE__, __LINE__);                                    \
    } while (false)

/// Feeds each input to \a function, which takes an ombrin::fuzz::Input by value.
#define OMBRIN_FUZZ_TARGET(function)                                                               \
    extern "C" int LLVMFuzzerInitialize(int *, char ***);                                          \
    extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, std::size_t size);                 \
    extern "C" int LLVMFuzzerInitialize(int *, char ***)                                           \
    {                                                                                              \
        ombrin::fuzz::application();                                                               \
        return 0;                                                                                  \
    }                                                                                              \
    extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, std::size_t size)                  \
    {                                                                                              \
        function(ombrin::fuzz::Input(bytes, size));                                                \
        return 0;                                                                                  \
    }
