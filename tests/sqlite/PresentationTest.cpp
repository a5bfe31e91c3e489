// SPDX-License-Identifier: MIT
//! \file
//! Columns of a database as columns of a view, in both generations.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/sqlite/Presentation.h>
#include <zbBrowserView/sqlite/Source.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <gmock/gmock.h>

namespace zbtest {

namespace {

using testing::ElementsAre;
using zbsqlite::Generation;
using zbsqlite::Host;
using zbsqlite::HostOptions;
using zbsqlite::Presentation;
using zbsqlite::Source;

class PresentationTest : public testing::TestWithParam<Generation> {
protected:
    void Make(std::string_view sql) {
        HostOptions options;
        options.generation = GetParam();
        host_.emplace(folder_.Make(sql), options);
    }

    zbIBrowserView& View() { return host_->AnyView(); }
    Source& Named(char const* name) { return Find(host_->Data(), name); }
    Presentation Present(std::vector<char const*> const& sources) {
        std::vector<Source*> shown;
        shown.reserve(sources.size());
        for (char const* const name : sources)
            shown.push_back(&Named(name));
        return Presentation(View(), shown);
    }

    //! The view property that the column shows.
    static zbIBrowserViewProperty& Shown(zbIBrowserViewColumn const& column) {
        std::vector<zbIBrowserStyle*> styles;
        column.GetStyles(styles);
        std::vector<zbIBrowserStyleElement*> elements;
        styles.at(0)->GetElements(elements);
        return *elements.at(0)->GetViewProperty();
    }

    zbIBrowserDataProperty* Connected(zbIBrowserViewProperty& property, Source& source) const {
        return GetParam() == Generation::New
                   ? property.GetDataProperty(static_cast<zbIBrowserDataSource*>(&source))
                   : property.GetDataProperty(static_cast<zbIBrowserDataSourceSimple*>(&source));
    }

    ZBBROWSER_DATA_TYPE TypeOf(Presentation& presentation, char const* column) const {
        return Shown(*presentation.FindColumn(column)).GetDataType();
    }

private:
    TempFolder folder_;
    std::optional<Host> host_;
};

INSTANTIATE_TEST_SUITE_P(, PresentationTest, testing::Values(Generation::Old, Generation::New),
                         [](auto const& generation) {
                             return generation.param == Generation::Old ? "Old" : "New";
                         });

} // namespace

TEST_P(PresentationTest, AColumnIsMadeOnceForAllSourcesThatHaveIt) {
    Make("CREATE TABLE part(id, mass REAL); CREATE TABLE crate(Mass REAL); CREATE TABLE bin(id)");
    auto presentation = Present({"part", "crate", "bin"});

    auto* const column = presentation.FindColumn("MASS");

    ASSERT_NE(column, nullptr);
    EXPECT_EQ(presentation.FindColumn("mass"), column);
    EXPECT_STREQ(column->GetTitle(), "mass");
    auto& property = Shown(*column);
    EXPECT_EQ(Connected(property, Named("part")), Named("part").FindDataProperty("mass"));
    EXPECT_EQ(Connected(property, Named("crate")), Named("crate").FindDataProperty("mass"));
    EXPECT_EQ(Connected(property, Named("bin")), nullptr);
}

TEST_P(PresentationTest, AColumnThatNoShownSourceHasIsNotMade) {
    Make("CREATE TABLE part(id); CREATE TABLE crate(mass)");
    auto presentation = Present({"part"});

    EXPECT_EQ(presentation.FindColumn("mass"), nullptr);
    EXPECT_FALSE(presentation.MakeRowsBoldBy("mass"));
    EXPECT_FALSE(presentation.NameRowsBy("mass"));
}

TEST_P(PresentationTest, ThePropertyHasTheTypeOfTheColumns) {
    Make("CREATE TABLE t(a INT, b REAL, c TEXT, d BOOLEAN, e DECIMAL, f BLOB, g)");
    auto presentation = Present({"t"});

    EXPECT_EQ(TypeOf(presentation, "a"), ZBBROWSER_DATA_TYPE_INTEGER);
    EXPECT_EQ(TypeOf(presentation, "b"), ZBBROWSER_DATA_TYPE_DOUBLE);
    EXPECT_EQ(TypeOf(presentation, "c"), ZBBROWSER_DATA_TYPE_STRING);
    EXPECT_EQ(TypeOf(presentation, "d"), ZBBROWSER_DATA_TYPE_BOOLEAN);
    EXPECT_EQ(TypeOf(presentation, "e"), ZBBROWSER_DATA_TYPE_DOUBLE);
    EXPECT_EQ(TypeOf(presentation, "f"), ZBBROWSER_DATA_TYPE_STRING);
    EXPECT_EQ(TypeOf(presentation, "g"), ZBBROWSER_DATA_TYPE_STRING);
}

TEST_P(PresentationTest, ColumnsThatDoNotAgreeOnATypeAreText) {
    Make("CREATE TABLE t(a INT); CREATE TABLE u(a REAL)");
    auto presentation = Present({"t", "u"});

    EXPECT_EQ(TypeOf(presentation, "a"), ZBBROWSER_DATA_TYPE_STRING);
}

TEST_P(PresentationTest, NamesKeepTheOrderOfEachSource) {
    Make("CREATE TABLE t(id, name, note); CREATE TABLE u(id, number, name, kind);"
         "CREATE TABLE v(x, note, y)");

    EXPECT_THAT(Present({"t", "u", "v"}).Names(),
                ElementsAre("id", "number", "name", "kind", "x", "note", "y"));
}

TEST_P(PresentationTest, NamesOfSourcesThatDoNotAgreeAreAllThere) {
    Make("CREATE TABLE t(a, b); CREATE TABLE u(c, b, A, d)");

    EXPECT_THAT(Present({"t", "u"}).Names(), ElementsAre("a", "d", "c", "b"));
}

TEST_P(PresentationTest, NamesThatTheViewHasGetANumber) {
    Make("CREATE TABLE t(default_name_prop, weight)");
    EXPECT_TRUE(View().CreateTextBoxColumn("weight", nullptr));
    auto presentation = Present({"t"});

    auto* const column = presentation.FindColumn("weight");
    EXPECT_STREQ(column->GetName(), "weight (2)");
    EXPECT_STREQ(column->GetTitle(), "weight");
    EXPECT_STREQ(Shown(*presentation.FindColumn("default_name_prop")).GetName(),
                 "default_name_prop (2)");
}

TEST_P(PresentationTest, AColumnWithoutANameGetsOne) {
    Make("CREATE TABLE t(\"\", \"(no name)\")");
    auto presentation = Present({"t"});

    EXPECT_STREQ(presentation.FindColumn("")->GetName(), "(no name)");
    EXPECT_STREQ(presentation.FindColumn("(no name)")->GetName(), "(no name) (2)");
    EXPECT_STREQ(presentation.FindColumn("(no name)")->GetTitle(), "(no name)");
}

TEST_P(PresentationTest, AColumnNamedAsAPartOfTheDefaultStyleIsAPlainOne) {
    Make("CREATE TABLE t(default_style_elem_icon, default_style_elem_name)");
    auto presentation = Present({"t"});

    for (char const* const name : {"default_style_elem_icon", "default_style_elem_name"}) {
        auto* const column = presentation.FindColumn(name);
        ASSERT_NE(column, nullptr) << name;
        std::vector<zbIBrowserStyle*> styles;
        column->GetStyles(styles);
        EXPECT_EQ(styles.at(0)->FindElement(name), nullptr) << name;
        EXPECT_STREQ(Shown(*column).GetName(), name);
    }
}

TEST_P(PresentationTest, BoldRowsAreToldByTheDefaultProperty) {
    Make("CREATE TABLE t(a, heavy BOOLEAN); CREATE TABLE u(a)");
    auto presentation = Present({"t", "u"});

    EXPECT_TRUE(presentation.MakeRowsBoldBy("Heavy"));

    auto& bold = *View().FindViewProperty(zbBrowserView::DEFAULT_BOLD_TEXT_PROP);
    EXPECT_EQ(Connected(bold, Named("t")), Named("t").FindDataProperty("heavy"));
    EXPECT_EQ(Connected(bold, Named("u")), nullptr);
}

TEST_P(PresentationTest, TheNameOfARowIsConnectedFromTheBeginning) {
    Make("CREATE TABLE t(name); INSERT INTO t VALUES ('bolt')");

    auto& name = *View().FindViewProperty(zbBrowserView::DEFAULT_NAME_PROP);

    EXPECT_EQ(Connected(name, Named("t")), &Named("t").NameProperty());
}

TEST_P(PresentationTest, EverySourceIsKnownToTheView) {
    Make("CREATE TABLE t(a); CREATE TABLE u(a)");

    for (char const* const name : {"t", "u"}) {
        auto* const source =
            GetParam() == Generation::New
                ? View().FindConnected(name)
                : static_cast<zbIBrowserDataSource*>(View().GetDataSourceSimple(name));
        EXPECT_EQ(source, static_cast<zbIBrowserDataSource*>(&Named(name))) << name;
    }
}

TEST_P(PresentationTest, RowsAreNamedAndComparedByTheColumnThatIsAskedFor) {
    Make("CREATE TABLE t(name, rank INT); INSERT INTO t VALUES ('a', 10), ('b', 9), ('c', NULL)");
    auto presentation = Present({"t"});

    EXPECT_TRUE(presentation.NameRowsBy("rank"));

    EXPECT_THAT(NamesOf(Named("t")), ElementsAre("10", "9", "(none)"));
    auto const items = ItemsOf(Named("t"));
    int order = 0;
    EXPECT_TRUE(Named("t").CompareByName(items[0], items[1], order));
    EXPECT_GT(order, 0);
}

TEST_P(PresentationTest, SourcesWithoutTheColumnKeepTheNamesOfTheirRows) {
    Make("CREATE TABLE t(name, rank); CREATE TABLE u(name); INSERT INTO u VALUES ('x')");
    auto presentation = Present({"t", "u"});

    EXPECT_TRUE(presentation.NameRowsBy("rank"));

    EXPECT_THAT(NamesOf(Named("u")), ElementsAre("x"));
}

TEST_P(PresentationTest, RowsThatAreLoadedCanBeNamedAnew) {
    Make("CREATE TABLE t(n INT, m INT); INSERT INTO t VALUES (1, 7), (2, 8)");
    EXPECT_THAT(NamesOf(Named("t")), ElementsAre("1", "2"));

    EXPECT_TRUE(Present({"t"}).NameRowsBy("m"));

    EXPECT_THAT(NamesOf(Named("t")), ElementsAre("7", "8"));
    EXPECT_THAT(RowsOf(Named("t")), ElementsAre("int 1|int 7", "int 2|int 8"));
}

TEST(RowName, IsThatOfARowOfItsSourceOnly) {
    TempFolder const folder;
    zbsqlite::DataCtrl control{zbsqlite::Database(
        folder.Make("CREATE TABLE t(name); INSERT INTO t VALUES ('a'), (NULL), (x'00ff');"
                    "CREATE TABLE u(name); INSERT INTO u VALUES ('b')"))};
    auto const items = ItemsOf(Find(control, "t"));
    auto& name = Find(control, "t").NameProperty();
    zbString text("before");

    EXPECT_FALSE(name.GetString(nullptr, nullptr, text));
    EXPECT_FALSE(name.GetString(items[1], nullptr, text));
    EXPECT_FALSE(name.GetString(ItemsOf(Find(control, "u"))[0], nullptr, text));
    EXPECT_TRUE(text == "before");
    EXPECT_TRUE(name.GetString(items[0], nullptr, text));
    EXPECT_TRUE(text == "a");
    EXPECT_TRUE(name.GetDisplayText(items[2], nullptr, text));
    EXPECT_TRUE(text == "x'00ff'");
}

TEST(RowName, OfTheCurrentItemIsAVariant) {
    TempFolder const folder;
    zbsqlite::DataCtrl control{
        zbsqlite::Database(folder.Make("CREATE TABLE t(name); INSERT INTO t VALUES ('a')"))};
    auto& name = Find(control, "t").NameProperty();
    zbVariant value;

    EXPECT_FALSE(name.GetVariant(value));
    control.SetCurrentDataItem(ItemsOf(Find(control, "t"))[0]);

    EXPECT_TRUE(name.GetVariant(value));
    EXPECT_TRUE(value.GetString() == "a");
}

} // namespace zbtest
