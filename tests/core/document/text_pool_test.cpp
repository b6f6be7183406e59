// Each text of a cell is kept once, under a number that stays.
#include "core/document/text_pool.h"

#include <gtest/gtest.h>

#include <set>

namespace tabrova {
namespace {

TEST(TextPool, GivesEachTextOneId) {
    TextPool pool;
    EXPECT_EQ(pool.intern(""), EmptyText);
    EXPECT_EQ(pool.intern("17"), pool.intern("17"));
    EXPECT_NE(pool.intern("17"), pool.intern("71"));
    for (const std::string& text : {std::string("a"), std::string("ab"), std::string("abc"),
                                    std::string(1, '\0'), std::string("a\0b", 3), std::string(100000, 'z')}) {
        EXPECT_EQ(pool.text(pool.intern(text)), text);
        EXPECT_EQ(pool.intern(text), pool.intern(text));
    }
    EXPECT_LT(pool.intern("b3.0"), 256u);
    pool.clear();
    EXPECT_EQ(pool.text(pool.intern("abc")), "abc");
}

TEST(TextPool, ThePlainTextsOfADocumentFitOneByte) {
    TextPool pool;
    const std::size_t size = pool.size();
    for (int number = 0; number <= 99; ++number)
        EXPECT_LT(pool.intern(std::to_string(number)), 256u) << number;
    for (const char* text :
         {"x",    ">",    "h",    "s",    "v",    "w",    "d",    "g",    "m",    "f",    "t",
          "l",    "o",    "r",    ".",    "\xB2", "p0.5", "p1.0", "p1.5", "p2.0", "p2.5", "p3.0",
          "b0.5", "b1.0", "b1.5", "b2.0", "b2.5", "b3.0", "r1",   "r2",   "r9",   "r15"})
        EXPECT_LT(pool.intern(text), 256u) << text;
    EXPECT_EQ(pool.size(), size);
}

TEST(TextPool, EveryTextOfOneAndTwoBytesHasItsOwnId) {
    TextPool pool;
    std::set<TextId> ids = {EmptyText};
    for (int first = 0; first < 256; ++first) {
        const std::string one(1, static_cast<char>(first));
        ids.insert(pool.intern(one));
        ASSERT_EQ(pool.text(pool.intern(one)), one);
        for (int second = 0; second < 256; ++second) {
            const std::string two = one + static_cast<char>(second);
            ids.insert(pool.intern(two));
            ASSERT_EQ(pool.text(pool.intern(two)), two);
        }
    }
    EXPECT_EQ(ids.size(), 1u + 256 + 65536);
}

TEST(TextPool, ATextStaysWhereItIsWhileThePoolGrows) {
    TextPool pool;
    const std::string_view early = pool.text(pool.intern("early text"));
    for (int number = 0; number < 100000; ++number)
        pool.intern("text " + std::to_string(number));
    EXPECT_EQ(early, "early text");
    EXPECT_EQ(early.data(), pool.text(pool.intern("early text")).data());
}

TEST(TextPool, KeepsACopyOfItsOwn) {
    TextPool pool;
    std::string text = "a text that changes";
    const TextId id = pool.intern(text);
    text[0] = 'b';
    EXPECT_EQ(pool.text(id), "a text that changes");
    EXPECT_NE(pool.intern(text), id);
}

TEST(TextPool, ClearingLeavesTheStartingTextsUnderTheirIds) {
    TextPool pool, fresh;
    for (int number = 0; number < 5000; ++number)
        pool.intern("text " + std::to_string(number));
    pool.clear();
    EXPECT_EQ(pool.size(), fresh.size());
    for (TextId id = 0; id < fresh.size(); ++id)
        EXPECT_EQ(pool.text(id), fresh.text(id));
}

} // namespace
} // namespace tabrova
