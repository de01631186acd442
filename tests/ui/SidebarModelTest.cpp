// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace lorva {
namespace {

/// Each letter a foundry.
SidebarContent foundries(const char *letters)
{
    SidebarContent content;
    for (const char *letter = letters; *letter; ++letter) {
        const QString id(QLatin1Char{*letter});
        content.foundryCollections.push_back({id, id.toUpper(), {}});
    }
    return content;
}

QString shown(const SidebarModel &model)
{
    const QModelIndex header = model.headerIndex(SidebarGroup::foundries);
    QString letters;
    for (int row = 0; row < model.rowCount(header); ++row)
        letters += model.index(row, 0, header).data().toString();
    return letters;
}

/// A model with Qt's own judge on its signals.
class SidebarModelChanges : public ::testing::Test
{
protected:
    void SetUp() override
    {
        s_complaints = 0;
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &context, const QString &message) {
                if (QByteArray(context.category) != "qt.modeltest")
                    return;
                ++s_complaints;
                ADD_FAILURE() << message.toStdString();
            });
    }
    void TearDown() override { qInstallMessageHandler(m_before); }

    static inline int s_complaints = 0;
    QtMessageHandler m_before = nullptr;
};

TEST_F(SidebarModelChanges, AnyTreeFollowsAnyOtherAndRowsKeepTheirIdentity)
{
    const struct
    {
        const char *before;
        const char *after;
        const char *shown;
    } rows[]{
        {"", "abc", "ABC"},
        {"abc", "abc", "ABC"},
        {"abc", "cba", "CBA"},
        {"abcdef", "xbyfz", "XBYFZ"},
        {"abc", "", ""},
        {"aab", "bbab", "BA"},
        {"abcd", "dxbya", "DXBYA"},
        {"bdfh", "abcdefghi", "ABCDEFGHI"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.before) + " to " + row.after);
        SidebarModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Warning);
        model.apply(sidebarTree(foundries(row.before)));
        std::map<QString, QPersistentModelIndex> kept;
        for (const SidebarRow &shownRow : model.rootItems().back().rows)
            kept.emplace(shownRow.label, model.indexOf(shownRow.item));

        model.apply(sidebarTree(foundries(row.after)));
        EXPECT_EQ(shown(model), QString::fromLatin1(row.shown));
        for (const auto &[label, index] : kept) {
            const bool stays = QString::fromLatin1(row.shown).contains(label);
            EXPECT_EQ(index.isValid(), stays) << label.toStdString();
            EXPECT_EQ(index.data().toString(), stays ? label : QString());
        }
    }
    EXPECT_EQ(s_complaints, 0);
}

TEST_F(SidebarModelChanges, CountsAndNamesChangeWithoutMovingARow)
{
    SidebarModel model;
    SidebarContent content = foundries("abcd");
    model.apply(sidebarTree(content));
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.apply(sidebarTree(content));
    EXPECT_EQ(changed.size(), 0) << "the same state again is no change";
    content.counts.foundries = {{QStringLiteral("b"), 2}};
    content.foundryCollections[2].name = QStringLiteral("New name");
    model.apply(sidebarTree(content));
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 2);
    EXPECT_EQ(inserted.size() + removed.size() + layout.size(), 0);
    EXPECT_EQ(model.labelAt(model.indexOf(SidebarItem::foundry(QStringLiteral("c")))),
              QStringLiteral("New name"));
}

} // namespace
} // namespace lorva
