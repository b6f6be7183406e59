// Which command a menu item or a word of the toolbar runs. Every class of commands registers its own rows;
// the window connects its menus and buttons to them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tabrova {

class CommandTable {
  public:
    using Command = std::function<void()>;

    struct ItemRow {
        std::string item; // mnu..., as the menus name it
        Command run;
    };
    struct WordRow {
        std::string word;
        std::string item; // the menu item that the button triggers, or "" for a command of its own
        Command run;
    };

    void item(std::string_view name, Command run) { items_.push_back({std::string(name), std::move(run)}); }
    void word(std::string_view word, Command run) {
        words_.push_back({std::string(word), {}, std::move(run)});
    }
    // The button is usable while the item is.
    void wordOfItem(std::string_view word, std::string_view item) {
        words_.push_back({std::string(word), std::string(item), {}});
    }

    const std::vector<ItemRow>& items() const { return items_; }
    // nullptr for a word without a command.
    const WordRow* wordRow(std::string_view word) const {
        for (const WordRow& row : words_)
            if (row.word == word) return &row;
        return nullptr;
    }

  private:
    std::vector<ItemRow> items_;
    std::vector<WordRow> words_;
};

} // namespace tabrova
