#include "skin/ResourceFile.h"

#include "skin/SkinPixmap.h"

#include <QtCore/QFile>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace ombrin {

namespace {

constexpr quint32 kNewestFormat = 3;
constexpr qint64 kHeaderSize = 20;
// Format 1. From format 2 on a node ends with a date of 8 bytes.
constexpr qint64 kNodeSize = 14;
constexpr qint64 kDateSize = 8;
constexpr quint16 kDeflatedFlag = 1;
constexpr quint16 kDirectoryFlag = 2;
constexpr quint16 kZstandardFlag = 4;
// What the largest picture takes that a skin may hold. Qt believes what a packed file says of its
// size, and allocates it.
constexpr quint64 kMaxUnpackedSize = 4ull * kMaxSkinImageExtent * kMaxSkinImageExtent;

class ResourceFile
{
public:
    ResourceFile(const uchar *bytes, qint64 size)
        : m_bytes(bytes)
        , m_size(size)
    {}

    bool isIntact()
    {
        if (!holds(0, kHeaderSize) || qstrncmp(reinterpret_cast<const char *>(m_bytes), "qres", 4))
            return false;
        const quint32 format = read32(4);
        if (format > kNewestFormat)
            return true;
        m_nodeSize = kNodeSize + (format >= 2 ? kDateSize : 0);
        m_tree = read32(8);
        m_data = read32(12);
        m_names = read32(16);
        return isTreeIntact();
    }

private:
    bool holds(qint64 offset, qint64 length) const { return offset + length <= m_size; }
    quint16 read16(qint64 offset) const { return qFromBigEndian<quint16>(m_bytes + offset); }
    quint32 read32(qint64 offset) const { return qFromBigEndian<quint32>(m_bytes + offset); }

    // A node is a name, flags, and either the number of children and the first of them, or language
    // and territory and the place of the file's contents. Children come after their parent and
    // belong to one parent only, else looking through the tree would never end.
    bool isTreeIntact() const
    {
        std::vector<qint64> pending{0};
        qint64 firstFree = 1;
        while (!pending.empty()) {
            const qint64 node = pending.back();
            pending.pop_back();
            const qint64 offset = m_tree + node * m_nodeSize;
            if (!holds(offset, m_nodeSize) || (node > 0 && !isNameIntact(read32(offset))))
                return false;
            if (!(read16(offset + 4) & kDirectoryFlag)) {
                if (!isContentIntact(read32(offset + 10), read16(offset + 4)))
                    return false;
                continue;
            }
            const qint64 count = read32(offset + 6);
            const qint64 first = read32(offset + 10);
            if (count > 0 && (first <= node || !holds(m_tree, (first + count) * m_nodeSize)))
                return false;
            firstFree += count;
            if (!holds(m_tree, firstFree * m_nodeSize))
                return false;
            for (qint64 child = first; child < first + count; ++child)
                pending.push_back(child);
        }
        return true;
    }

    // Length in characters, hash, characters. A folder called like itself would never end.
    bool isNameIntact(qint64 name) const
    {
        const qint64 offset = m_names + name;
        if (!holds(offset, 6) || !holds(offset + 6, 2 * qint64(read16(offset))))
            return false;
        const int length = read16(offset);
        bool hasOnlyDots = length <= 2;
        for (int index = 0; index < length; ++index) {
            const quint16 letter = read16(offset + 6 + 2 * index);
            if (letter == u'/')
                return false;
            hasOnlyDots = hasOnlyDots && letter == u'.';
        }
        return !hasOnlyDots; // nor is it empty
    }

    // Length in bytes, bytes.
    bool isContentIntact(qint64 content, quint16 flags) const
    {
        const qint64 offset = m_data + content;
        if (!holds(offset, 4) || !holds(offset + 4, read32(offset)))
            return false;
        const qint64 length = read32(offset);
        if (flags & kDeflatedFlag)
            return length < 4 || read32(offset + 4) <= kMaxUnpackedSize;
        if (flags & kZstandardFlag)
            return zstandardSize(m_bytes + offset + 4, length) <= kMaxUnpackedSize;
        return true;
    }

    // The size that the header of a Zstandard frame tells, 0 if it tells none.
    static quint64 zstandardSize(const uchar *frame, qint64 length)
    {
        constexpr int kDictionarySizes[] = {0, 1, 2, 4};
        constexpr int kMagicSize = 4;
        constexpr int kLongestHeader = kMagicSize + 14;
        if (length < kLongestHeader)
            return 0; // too short to hold more than a few bytes
        const int descriptor = frame[kMagicSize];
        const bool isSingleSegment = descriptor & 0x20;
        const uchar *const size =
                frame + kMagicSize + (isSingleSegment ? 1 : 2) + kDictionarySizes[descriptor & 3];
        switch (descriptor >> 6) {
        case 0:
            return isSingleSegment ? size[0] : 0;
        case 1:
            return 256 + quint64(qFromLittleEndian<quint16>(size));
        case 2:
            return qFromLittleEndian<quint32>(size);
        default:
            return qFromLittleEndian<quint64>(size);
        }
    }

    const uchar *m_bytes;
    qint64 m_size;
    qint64 m_nodeSize = kNodeSize;
    qint64 m_tree = 0;
    qint64 m_data = 0;
    qint64 m_names = 0;
};

} // namespace

bool isIntactResourceFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Qt's own offsets are signed 32-bit numbers.
    if (file.size() > std::numeric_limits<qint32>::max())
        return false;
    const uchar *const bytes = file.map(0, file.size());
    return bytes && ResourceFile(bytes, file.size()).isIntact();
}

} // namespace ombrin
