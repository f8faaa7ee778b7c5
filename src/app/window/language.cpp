#include "app/window/language.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

/// Outside the namespace: the resource file is compiled into a library.
static void initTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace kelvo {
namespace {

const QString cFolder = QStringLiteral(":/kelvo-mirror/translations");
const QString cBase = QStringLiteral("kelvo-mirror_");

bool isThere(const QString& catalogue) {
    return QFile::exists(cFolder + u'/' + cBase + catalogue + u".qm");
}

/// Left to `application` once it is loaded.
bool install(QApplication& application, const QString& file, const QString& folder) {
    auto words = std::make_unique<QTranslator>(&application);
    return words->load(file, folder) && QCoreApplication::installTranslator(words.release());
}

} // namespace

bool messagesAreC() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value == "C" || value == "POSIX" || value.startsWith("C.");
    }
    return true;
}

QString catalogueFor(const QStringList& languages) {
    initTranslations();
    for (const QString& tag : languages) {
        const QLocale locale(tag);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return {};
        QString language = locale.name().section(u'_', 0, 0);
        if (locale.language() == QLocale::Chinese) {
            if (locale.script() == QLocale::SimplifiedHanScript)
                return isThere(QStringLiteral("zh_CN")) ? QStringLiteral("zh_CN") : QString();
        } else if (isThere(language)) {
            return language;
        }
    }
    return {};
}

void speakTheirLanguage(QApplication& application) {
    if (const QLocale system = QLocale::system(); system.language() != QLocale::C)
        QLocale::setDefault(system);
    if (messagesAreC())
        return;
    if (const QString catalogue = catalogueFor(QLocale::system().uiLanguages());
        !catalogue.isEmpty())
        (void)speak(application, catalogue);
}

bool speak(QApplication& application, const QString& catalogue) {
    initTranslations();
    // Qt's own first: who comes last is asked first.
    (void)install(application, u"qtbase_" + catalogue,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!install(application, cBase + catalogue, cFolder))
        return false;
    QGuiApplication::setLayoutDirection(QLocale(catalogue).textDirection());
    return true;
}

} // namespace kelvo
