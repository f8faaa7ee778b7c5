// NameList: many names in one piece of memory.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <initializer_list>
#include <vector>

namespace kelvo {

/// Bytes of any kind. Tens of thousands of names that each had memory of their own would cost more
/// than what is done with them.
class NameList {
public:
    NameList() = default;
    NameList(std::initializer_list<QByteArrayView> names) {
        for (const QByteArrayView name : names)
            append(name);
    }

    void append(QByteArrayView name) {
        fBytes.append(name);
        fEnds.push_back(fBytes.size());
    }

    void append(const NameList& others) {
        const qsizetype before = fBytes.size();
        fBytes.append(others.fBytes);
        for (const qsizetype end : others.fEnds)
            fEnds.push_back(before + end);
    }

    std::size_t size() const { return fEnds.size(); }

    /// Of all names together.
    qsizetype bytes() const { return fBytes.size(); }

    /// Holds until the list changes.
    QByteArrayView operator[](std::size_t at) const {
        const qsizetype begin = at == 0 ? 0 : fEnds[at - 1];
        return QByteArrayView(fBytes).sliced(begin, fEnds[at] - begin);
    }

    bool operator==(const NameList&) const = default;

private:
    QByteArray fBytes;
    std::vector<qsizetype> fEnds;
};

} // namespace kelvo
