// The lists of a rich text: the signs before their paragraphs, for texts that do not spell them out.
#pragma once

#include <QString>

#include <array>
#include <map>
#include <vector>

namespace tabrova {

class RtfLists {
  public:
    static constexpr std::size_t MostLists = 2000;
    static constexpr int Levels = 9; // of a list

    // In the table of lists.
    void beginList();
    // Of its next level: 23 are bullets, 0 numbers, 1 to 4 roman ones and letters.
    void setLevelNumbers(int kind);
    // What the same level counts from.
    void setLevelStart(int number);
    void setListId(int id);
    // In the table that gives the lists the numbers by which paragraphs name them.
    void setOverrideList(int id) { overrideList_ = id; }
    void setOverrideNumber(int number);

    // The sign before the next paragraph of this list and level, counted from 0. A list that no table has
    // shows bullets.
    QString nextSign(int number, int level);
    // The same for a paragraph that spells its sign.
    void count(int number, int level);

  private:
    static constexpr std::array<int, Levels> startsAtOne() {
        std::array<int, Levels> starts = {};
        starts.fill(1);
        return starts;
    }
    struct List {
        std::vector<int> kinds;
        std::array<int, Levels> starts = startsAtOne();
        std::array<int, Levels> counts = {};
    };
    List* list(int number);

    std::vector<List> lists_;
    std::map<int, std::size_t> byId_;
    std::map<int, std::size_t> byNumber_;
    int overrideList_ = 0;
};

} // namespace tabrova
