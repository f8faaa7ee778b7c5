// The language of the window.
#pragma once

#include <QString>
#include <QStringList>

class QApplication;

namespace kelvo {

/// The catalogue for somebody who reads `languages` (tags such as "de-AT", the dearest first), of
/// those there are: "de", "zh_CN"; empty for English and where none fits.
QString catalogueFor(const QStringList& languages);

/// Whether the environment asks for the messages of "C"; LANGUAGE does not count then, as for the
/// C library.
bool messagesAreC();

/// From now on `application` has the words, the direction and the numbers that the environment asks
/// for. With LANG=C, and in English, no catalogue is read. Once, before the first window.
void speakTheirLanguage(QApplication& application);

/// The same for the catalogue of this name, whatever the environment says; false when there is
/// none.
bool speak(QApplication& application, const QString& catalogue);

} // namespace kelvo
