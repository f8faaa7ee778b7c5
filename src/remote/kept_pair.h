// KeptPair: a key pair under further names while another one takes its place.
#pragma once

#include "ports/file_manager.h"

#include <QDateTime>
#include <QString>

namespace kelvo {

/// Whether either half of the pair at `keyPath` is there.
bool isHalfThere(const FileManager& files, const QString& keyPath);

/// Any thread, one at a time; blocks while files are looked at and changed.
class KeptPair {
public:
    /// Of the private half at `keyPath` and the public one beside it. `files` outlives this.
    KeptPair(FileManager& files, QString keyPath);

    /// Gives each half that is there a further name with the local time of `when`: "id_x" becomes
    /// "id_x-2026-11-22T08-30-00", and with ".pub" likewise. No name that is taken is touched.
    /// After a fault no further name is left.
    FileFault keep(const QDateTime& when);

    /// Whether nothing lies in the pair's place although something was kept.
    bool isMissing() const;

    /// Gives the halves that were kept their old names back; the further ones go.
    FileFault putBack();

    /// Under what path the private half was kept; empty when nothing was.
    const QString& path() const { return fPath; }

private:
    QString freePath(const QString& stamp) const;

    FileManager& fFiles;
    const QString fKeyPath;
    QString fPath;
    bool fPrivateKept = false;
    bool fPublicKept = false;
};

} // namespace kelvo
