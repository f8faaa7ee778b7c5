#include "sync/rsync_command.h"
#include "ui/movie_kinds.h"
#include "ui/template_faults.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Faults = std::vector<TemplateFault>;
using enum TemplateFault;

Faults faultsOf(const char* command, bool overSsh = true, qint64 tag = 100) {
    return templateFaults(QString::fromLatin1(command), overSsh, tag);
}

TEST(TemplateFaultsTest, TemplatesThatAreDelivered_HaveNone) {
    for (const bool overSsh : {true, false}) {
        for (const qint64 tag : {100, 101, 102, 105})
            EXPECT_EQ(templateFaults(factoryTemplate(), overSsh, tag), Faults());
    }
    EXPECT_EQ(templateFaults(cMovieCommandTemplate.toString(), true, 100), Faults());
}

TEST(TemplateFaultsTest, MissingFolders_AreNamedInTheirOrder) {
    EXPECT_EQ(faultsOf("rsync %@98 \"%@2\""), Faults{NoSource});
    EXPECT_EQ(faultsOf("rsync %@98 \"%@1\""), Faults{NoDestination});
    EXPECT_EQ(faultsOf("rsync %@98"), (Faults{NoSource, NoDestination}));
}

TEST(TemplateFaultsTest, SshPart_IsNeededByAPullAloneAndMayBeWrittenOut) {
    EXPECT_EQ(faultsOf("rsync %@1 %@2", true), Faults{NoSsh});
    EXPECT_EQ(faultsOf("rsync %@1 %@2", false), Faults());
    EXPECT_EQ(faultsOf("rsync -e 'ssh -i %@3' %@1 %@2", true), Faults());
}

TEST(TemplateFaultsTest, OptionsPlace_IsNeededByAnOption) {
    EXPECT_EQ(faultsOf("rsync %@1 %@2", false, 101), Faults{NoOption});
    EXPECT_EQ(faultsOf("rsync %@99 %@1 %@2", false, 101), Faults());
    for (const qint64 tag : {100, 105, 103, 0})
        EXPECT_EQ(faultsOf("rsync %@1 %@2", false, tag), Faults()) << tag;
}

TEST(TemplateFaultsTest, FolderThatFallsApart_IsAFaultOnlyWherePassesAreRefused) {
    for (const char* whole : {"rsync %@1 %@2", "rsync '%@1' '%@2'", "rsync \"%@1\" \"%@2\""})
        EXPECT_EQ(faultsOf(whole, false), Faults()) << whole;
    for (const char* apart : {"echo `rsync %@1 %@2`", "sh -c 'rsync %@1 %@2'"}) {
        EXPECT_EQ(faultsOf(apart, false), Faults{PartsWords}) << apart;
        EXPECT_NE(commandFault(QString::fromLatin1(apart),
                               {QStringLiteral("/a b"), QStringLiteral("/c"), {}}),
                  QString());
    }
}

} // namespace
} // namespace kelvo
