#include "adapters/settings/plist_guard.h"

#include "support/stored_value.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace kelvo {
namespace {

/// libplist frees containers recursively; it was seen to bear 100,000 levels on an 8 MiB stack.
constexpr qsizetype cMostXmlContainers = 20'000;
constexpr std::uint64_t cMostBinaryNodes = 400'000;
/// A text or data counts as one node more for so many bytes: it can be referred to many times.
constexpr std::uint64_t cBytesPerNode = 64;
constexpr qsizetype cHeaderSize = 8;
constexpr qsizetype cTrailerSize = 32;

/// The kinds of objects that carry a count, as the upper half of their marker byte says.
enum ObjectKind : unsigned {
    cData = 0x4,
    cAscii = 0x5,
    cUtf16 = 0x6,
    cArray = 0xa,
    cSet = 0xc,
    cDictionary = 0xd,
};

QString xmlFault(QByteArrayView xml) {
    const QByteArrayView text = xml.trimmed();
    // A list without the <plist> element is taken too, but then nothing may hint at a lost one.
    const bool bare = text.startsWith("<dict") && text.endsWith("</dict>");
    if (!bare && !text.endsWith("</plist>"))
        return QStringLiteral("its end is missing");
    qsizetype containers = 0;
    for (qsizetype at = text.indexOf('<'); at >= 0; at = text.indexOf('<', at + 1)) {
        const QByteArrayView tag = text.sliced(at + 1);
        if (tag.startsWith("dict") || tag.startsWith("array"))
            ++containers;
    }
    if (containers > cMostXmlContainers)
        return QStringLiteral("it has too many parts");
    return {};
}

/// Walks the object table of a binary list without building anything.
class BinaryWalk {
public:
    explicit BinaryWalk(QByteArrayView bytes) : fBytes(bytes) {}

    QString fault() {
        if (fBytes.size() < cHeaderSize + cTrailerSize + 1)
            return QStringLiteral("it is cut");
        const qsizetype trailer = fBytes.size() - cTrailerSize;
        fOffsetSize = byteAt(trailer + 6);
        fReferenceSize = byteAt(trailer + 7);
        const std::uint64_t objects = number(trailer + 8, 8);
        const std::uint64_t top = number(trailer + 16, 8);
        fTable = number(trailer + 24, 8);
        const auto limit = static_cast<std::uint64_t>(trailer);
        if (fOffsetSize < 1 || fOffsetSize > 8 || fReferenceSize < 1 || fReferenceSize > 8 ||
            fTable >= limit || objects > (limit - fTable) / fOffsetSize || top >= objects)
            return QStringLiteral("its table of objects is broken");
        fNodes.assign(objects, cUnknown);
        fHeights.assign(objects, 0);
        visit(top, 1);
        return fFault;
    }

private:
    static constexpr std::uint64_t cUnknown = 0;
    static constexpr std::uint64_t cOpen = UINT64_MAX;

    std::uint8_t byteAt(qsizetype at) const { return static_cast<std::uint8_t>(fBytes[at]); }

    std::uint64_t number(qsizetype at, unsigned size) const {
        std::uint64_t value = 0;
        for (unsigned i = 0; i < size; ++i)
            value = value << 8 | byteAt(at + i);
        return value;
    }

    void refuse(const QString& fault) {
        if (fFault.isEmpty())
            fFault = fault;
    }

    struct Object {
        unsigned kind = 0;       ///< 0 for one that counts nothing
        qsizetype begin = 0;     ///< of what is counted
        std::uint64_t count = 0; ///< a dictionary's: keys, and values as many behind them
    };

    /// Reads the head of the object at `offset`; refuses one that reaches outside the list.
    Object objectAt(std::uint64_t offset) {
        const auto limit = static_cast<std::uint64_t>(fBytes.size() - cTrailerSize);
        if (offset < cHeaderSize || offset >= limit) {
            refuse(QStringLiteral("one of its objects lies outside it"));
            return {};
        }
        auto at = static_cast<qsizetype>(offset);
        const std::uint8_t marker = byteAt(at++);
        const unsigned unit = unitSize(marker >> 4);
        if (unit == 0)
            return {};
        std::uint64_t count = marker & 0x0f;
        if (count == 0x0f) {
            const unsigned size = 1U << (byteAt(at++) & 0x03);
            count = number(at, size);
            at += static_cast<qsizetype>(size);
        }
        const auto begin = static_cast<std::uint64_t>(at);
        if (begin > limit || count > (limit - begin) / unit) {
            refuse(QStringLiteral("one of its objects is cut"));
            return {};
        }
        return {unsigned{marker} >> 4, at, count};
    }

    std::uint64_t offsetOf(std::uint64_t index) const {
        const std::uint64_t entry = fTable + index * fOffsetSize;
        return number(static_cast<qsizetype>(entry), fOffsetSize);
    }

    /// Whether `index` is a text with a zero in it. libplist ends the program at such a key.
    bool holdsZero(std::uint64_t index) {
        const Object object = objectAt(offsetOf(index));
        if (object.kind != cAscii && object.kind != cUtf16)
            return false;
        const unsigned unit = unitSize(object.kind);
        for (std::uint64_t i = 0; i < object.count; ++i) {
            if (number(object.begin + static_cast<qsizetype>(i * unit), unit) == 0)
                return true;
        }
        return false;
    }

    /// How many bytes of the list each counted item of such an object takes; 0: it counts none.
    unsigned unitSize(unsigned kind) const {
        switch (kind) {
        case cData:
        case cAscii:
            return 1;
        case cUtf16:
            return 2;
        case cArray:
        case cSet:
            return fReferenceSize;
        case cDictionary:
            return 2 * fReferenceSize;
        default:
            return 0;
        }
    }

    /// Fills in how many nodes `index` unfolds to, and how many containers lie below it.
    void visit(std::uint64_t index, int depth) {
        if (index >= fNodes.size())
            return refuse(QStringLiteral("it refers to an object that is not there"));
        if (fNodes[index] == cOpen)
            return refuse(QStringLiteral("its objects contain themselves"));
        if (depth + fHeights[index] > cDeepestStoredValue + 2)
            return refuse(QStringLiteral("it is nested too deep"));
        if (fNodes[index] != cUnknown)
            return;
        fNodes[index] = cOpen;
        const Object object = objectAt(offsetOf(index));
        const std::uint64_t bytes = object.count * unitSize(object.kind);
        const bool container = object.kind >= cArray;
        std::uint64_t nodes = container ? 1 : 1 + bytes / cBytesPerNode;
        int height = 0;
        const std::uint64_t referenced = container ? bytes / fReferenceSize : 0;
        for (std::uint64_t i = 0; i < referenced && fFault.isEmpty(); ++i) {
            const auto at = object.begin + static_cast<qsizetype>(i * fReferenceSize);
            const std::uint64_t child = number(at, fReferenceSize);
            visit(child, depth + 1);
            const bool isKey = object.kind == cDictionary && i < object.count;
            if (isKey && fFault.isEmpty() && holdsZero(child))
                refuse(QStringLiteral("one of its keys holds a zero"));
            if (!fFault.isEmpty())
                return;
            nodes += fNodes[child];
            height = std::max(height, fHeights[child] + 1);
            if (nodes > cMostBinaryNodes)
                return refuse(QStringLiteral("it unfolds to too many parts"));
        }
        fNodes[index] = nodes;
        fHeights[index] = height;
    }

    QByteArrayView fBytes;
    unsigned fOffsetSize = 0;
    unsigned fReferenceSize = 0;
    std::uint64_t fTable = 0;
    std::vector<std::uint64_t> fNodes;
    std::vector<int> fHeights;
    QString fFault;
};

} // namespace

QString plistFault(QByteArrayView bytes) {
    if (bytes.isEmpty())
        return QStringLiteral("it is empty");
    if (bytes.size() > cLargestPlist)
        return QStringLiteral("it is larger than 16 MiB");
    return isBinaryPlist(bytes) ? BinaryWalk(bytes).fault() : xmlFault(bytes);
}

bool isBinaryPlist(QByteArrayView bytes) {
    return bytes.startsWith("bplist");
}

} // namespace kelvo
