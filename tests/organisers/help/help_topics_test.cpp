// The help's texts, word for word.
#include "organisers/help/help_topics.h"

#include "tests/organisers/help/written_topics.h"

#include <gtest/gtest.h>

namespace tabrova::testing {
namespace {

TEST(HelpTopics, AreThirtyFiveInTheirOrder) {
    ASSERT_EQ(helpTopics().size(), 35u);
    ASSERT_EQ(std::size(WrittenTopics), 35u);
    for (const WrittenTopic& written : WrittenTopics) {
        const HelpTopic& topic = helpTopics()[static_cast<std::size_t>(written.position)];
        EXPECT_EQ(topic.question, written.question);
        EXPECT_EQ(topic.answer, written.answer);
    }
}

TEST(HelpTopics, HaveTwoBlanksInTheQuestionOfTheMidiFile) {
    EXPECT_EQ(std::string_view(helpTopics()[5].question), "Export a  Document to a MIDI File?");
}

TEST(HelpTopics, BeginWithAWelcome) { EXPECT_EQ(helpWelcome(), WrittenWelcome); }

} // namespace
} // namespace tabrova::testing
