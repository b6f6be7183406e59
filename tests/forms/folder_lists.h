// A list of a folder of its own, and how often it is filled and speaks.
#pragma once

#include "forms/folder_list.h"
#include "tests/core/files/temporary_folder.h"

#include <QTest>

#include <gtest/gtest.h>

#include <fstream>

namespace tabrova::testing {

class FolderListTest : public ::testing::Test {
  protected:
    FolderListTest() {
        list.Click = [this] { ++clicks; };
        QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &list, [this] { ++fillings; });
        QObject::connect(&list, &QListWidget::currentRowChanged, &list, [this] { ++signals_; });
        QObject::connect(&list, &QListWidget::itemSelectionChanged, &list, [this] { ++signals_; });
    }
    std::filesystem::path folder() const { return home.path() / "folder"; }
    void file(const std::filesystem::path& name) const { std::ofstream(folder() / name) << "x"; }
    void files(const std::vector<const char*>& names) const {
        std::filesystem::create_directories(folder());
        for (const char* name : names)
            file(name);
    }
    QStringList rows() const {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            texts.append(list.item(row)->text());
        return texts;
    }
    // By itself, and soon.
    bool shows(const QStringList& wanted) const {
        return QTest::qWaitFor([this, wanted] { return rows() == wanted; }, 5000);
    }
    void present() {
        list.resize(200, 200);
        list.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    }
    QString top() const { return list.itemAt(2, 2)->text(); }

    TemporaryFolder home;
    FolderList list{"lst", EntryKind::Files, nullptr};
    int clicks = 0;
    int fillings = 0;
    int signals_ = 0;
};

} // namespace tabrova::testing
