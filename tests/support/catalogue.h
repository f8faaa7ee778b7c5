// The texts that the window's catalogues know.
#pragma once

#include <QFile>
#include <QXmlStreamReader>

#include <set>
#include <utility>

namespace kelvo {

using Asked = std::pair<QString, QString>; ///< context and source

/// All texts of the catalogues' sources; they are the same in each language.
inline std::set<Asked> readTexts() {
    QFile file(QStringLiteral(KELVO_TRANSLATIONS "/kelvo-mirror_de.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::set<Asked> known;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name")
            context = xml.readElementText();
        else if (xml.name() == u"source")
            known.emplace(context, xml.readElementText());
    }
    return known;
}

/// Of the texts that were looked up, those of the program that no catalogue has. What comes from
/// below is looked up as it is said, and may hold anything.
inline std::set<Asked> unknownAmong(const std::set<Asked>& asked) {
    if (asked.empty())
        return {};
    static const std::set<Asked> known = readTexts();
    std::set<QString> contexts;
    for (const auto& [context, source] : known)
        contexts.insert(context);
    std::set<Asked> unknown;
    for (const Asked& each : asked) {
        const auto& [context, source] = each;
        const bool isOurs = contexts.contains(context) || context.startsWith(u"kelvo");
        if (isOurs && context != u"FixedWords" && context != u"QObject" && !source.isEmpty() &&
            !known.contains(each))
            unknown.insert(each);
    }
    return unknown;
}

} // namespace kelvo
