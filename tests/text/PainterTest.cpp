// SPDX-License-Identifier: MIT
//! \file
//! What a painter shows of views of both generations.
#include "text/Painter.h"

#include "support/Generations.h"
#include "support/ItemDoubles.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <string>
#include <vector>

namespace zbtest {
namespace {

using zbtext::Part;
using zbtext::Value;
using zbtext::ValueKind;

//! Takes the properties named in `typed` for columns whose values are all 42.
class TypedReader final : public zbtext::RowReader {
public:
    zbIBrowserDataProperty const* typed = nullptr; // Not owned.

    std::vector<std::string> GetColumnNames(zbIBrowserDataSourceSimple& /*source*/) const override {
        return {};
    }
    Value GetValue(zbIBrowserDataProperty& /*property*/,
                   zbIBrowserDataItemSimple& /*row*/) const override {
        return Value::OfInteger(42);
    }
    bool IsColumn(zbIBrowserDataProperty& property,
                  zbIBrowserDataSourceSimple& /*source*/) const override {
        return &property == typed;
    }
    std::string GetFault(zbIBrowserDataSourceSimple& /*source*/) const override { return {}; }
};

//! A row as each of the generations has it.
class PaintedRow final : public ItemDouble {
public:
    PaintedRow(zbIBrowserView& itsView, RecordingItem& itsData)
        : ItemDouble(&itsView)
        , data_(itsData) {}

    zbIBrowserDataItemSimple* GetDataItemSimple() const override {
        return view->IsNewView() ? nullptr : &data_;
    }
    zbIBrowserDataItem* GetDataItem() const override { return &data_; }
    bool IsDataLeaf() const override { return !view->IsNewView(); }
    bool IsDataNode() const override { return view->IsNewView(); }

private:
    RecordingItem& data_;
};

//! A view with the column "weight", whose one element shows the data property "weight" of the
//! source "part", where the bolt has 12 and the nut nothing.
template <class Generation>
class PainterTest : public testing::Test {
protected:
    PainterTest() {
        part["bolt"].Set("weight", 12).Set("unit", zbString("g"));
        AddElement("weight");
    }

    void AddElement(char const* property) {
        view.CreateViewProperty(property);
        auto* const viewProperty = view.FindViewProperty(property);
        auto* const source = static_cast<typename Generation::Source*>(&part);
        EXPECT_TRUE(view.CreateVPConnect(viewProperty, source, &part.Property(property)));
        style.CreateElement(property, "")->SetViewProperty(viewProperty);
    }

    static std::string TextOf(Value const& value) {
        switch (value.kind) {
        case ValueKind::Null:
            return "null";
        case ValueKind::Integer:
            return "int " + std::to_string(value.integer);
        default:
            return std::string(value.bytes);
        }
    }
    std::string Shown(zbtext::Painter& painter, zbIBrowserViewItem& item,
                      Part wanted = Part::Text) {
        return TextOf(painter.GetValue(item, 1, wanted));
    }

    RecordingHost host;
    typename Generation::View& view = Generation::Make(host, "view");
    RecordingSource& part = host.Source("part").Items({"bolt", "nut"});
    zbIBrowserViewColumn& column = MakeColumn(view);
    zbIBrowserStyle& style = *column.FindStyle("cell");
    PaintedRow bolt{view, part["bolt"]};
    PaintedRow nut{view, part["nut"]};
    TypedReader reader;

private:
    static zbIBrowserViewColumn& MakeColumn(zbIBrowserView& view) {
        EXPECT_TRUE(view.CreateTextBoxColumn("weight", ""));
        auto* const column = view.FindColumn("weight");
        EXPECT_TRUE(column->CreateStyle("cell"));
        return *column;
    }
};
TYPED_TEST_SUITE(PainterTest, Generations, GenerationName);

TYPED_TEST(PainterTest, TheDefaultColumnComesFirst) {
    zbtext::Painter const painter(this->view, this->reader);

    ASSERT_EQ(painter.GetColumnCount(), 2U);
    EXPECT_EQ(&painter.GetColumn(0), this->view.GetDefaultColumn());
    EXPECT_EQ(&painter.GetColumn(1), &this->column);
}

TYPED_TEST(PainterTest, TextsOfSeveralElementsAreJoinedByABlank) {
    this->AddElement("unit");
    zbtext::Painter painter(this->view, this->reader);

    EXPECT_EQ(this->Shown(painter, this->bolt), "12 g");
}

TYPED_TEST(PainterTest, AnElementWithoutAValueLeavesNoBlank) {
    this->part["nut"].Set("unit", zbString("g"));
    this->AddElement("unit");
    zbtext::Painter painter(this->view, this->reader);

    EXPECT_EQ(this->Shown(painter, this->nut), "g");
}

TYPED_TEST(PainterTest, ACellWithoutAValueIsNull) {
    zbtext::Painter painter(this->view, this->reader);

    EXPECT_EQ(this->Shown(painter, this->nut), "null");
}

TYPED_TEST(PainterTest, AnElementWithoutAPropertyIsNull) {
    this->style.FindElement("weight")->SetViewProperty(nullptr);
    zbtext::Painter painter(this->view, this->reader);

    EXPECT_EQ(this->Shown(painter, this->bolt), "null");
}

TYPED_TEST(PainterTest, AChangedStyleIsReadAgain) {
    zbtext::Painter painter(this->view, this->reader);
    this->Shown(painter, this->bolt);

    this->AddElement("unit");

    EXPECT_EQ(this->Shown(painter, this->bolt), "12 g");
}

TYPED_TEST(PainterTest, AStyleThatHasBeenReadIsPendingNoMore) {
    zbtext::Painter painter(this->view, this->reader);
    EXPECT_TRUE(this->style.IsPending());

    this->Shown(painter, this->bolt);

    EXPECT_FALSE(this->style.IsPending());
}

TYPED_TEST(PainterTest, ADeletedColumnShowsNothing) {
    zbtext::Painter painter(this->view, this->reader);
    this->Shown(painter, this->bolt);

    this->view.DeleteScriptedColumn(&this->column);

    EXPECT_EQ(this->Shown(painter, this->bolt), "null");
    EXPECT_FALSE(painter.GetLook(this->bolt, 1).bold);
}

TYPED_TEST(PainterTest, ASlotMayDeleteTheColumnThatIsPainted) {
    zbtext::Painter painter(this->view, this->reader);
    auto const connection = this->host.signals.StyleCreated.Connect(
        [this](zbIBrowserStyle*) { this->view.DeleteScriptedColumn(&this->column); });

    this->Shown(painter, this->bolt);

    EXPECT_EQ(this->view.FindColumn("weight"), nullptr);
    EXPECT_EQ(this->Shown(painter, this->bolt), "null");
}

TYPED_TEST(PainterTest, ADeletedStyleShowsNothing) {
    zbtext::Painter painter(this->view, this->reader);
    this->Shown(painter, this->bolt);

    EXPECT_TRUE(this->column.DeleteStyle(&this->style));

    EXPECT_EQ(this->Shown(painter, this->bolt), "null");
}

TYPED_TEST(PainterTest, ADeletedElementIsShownNoMore) {
    this->AddElement("unit");
    zbtext::Painter painter(this->view, this->reader);
    this->Shown(painter, this->bolt);

    EXPECT_TRUE(this->style.DeleteElement(this->style.FindElement("weight")));

    EXPECT_EQ(this->Shown(painter, this->bolt), "g");
}

TYPED_TEST(PainterTest, OnlyTheCellsThatAreAskedForAreRead) {
    zbtext::Painter painter(this->view, this->reader);
    this->host.calls.ForgetCounts();

    this->Shown(painter, this->bolt);
    this->Shown(painter, this->nut);

    auto const* const read = TypeParam::name == std::string("Old") ? "GetString" : "GetVariant";
    EXPECT_EQ(this->host.calls.Count(read), 2U);
    EXPECT_EQ(this->host.calls.Count("GetDataItems"), 0U);
}

TYPED_TEST(PainterTest, HasCellsOnlyForSourcesThatAreConnected) {
    zbtext::Painter const painter(this->view, this->reader);

    EXPECT_TRUE(painter.HasCells(this->part, 1));
    EXPECT_FALSE(painter.HasCells(this->host.Source("supplier"), 1));
}

TYPED_TEST(PainterTest, TellsTheSortedColumnAndItsDirection) {
    zbtext::Painter const painter(this->view, this->reader);
    EXPECT_FALSE(painter.GetSortMark());

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->column, false));

    ASSERT_TRUE(painter.GetSortMark());
    EXPECT_EQ(painter.GetSortMark()->column, 1U);
    EXPECT_FALSE(painter.GetSortMark()->ascending);
}

TYPED_TEST(PainterTest, TheSortMarkGoesWithItsColumn) {
    zbtext::Painter const painter(this->view, this->reader);
    EXPECT_TRUE(this->view.SetAscendingOrder(&this->column, true));

    this->view.DeleteScriptedColumn(&this->column);

    EXPECT_FALSE(painter.GetSortMark());
}

// A folder of either generation has an icon, a name and a look without any data.

TYPED_TEST(PainterTest, TheDefaultColumnShowsIconAndNameOfAFolderApart) {
    auto* const root = this->view.GetRootFreeFolder();
    EXPECT_TRUE(this->view.CreateFreeFolder(root, "box"));
    auto* const box = root->FindChildFreeFolder("box");
    zbtext::Painter painter(this->view, this->reader);

    EXPECT_EQ(this->TextOf(painter.GetValue(*box, 0, Part::Text)), "box");
    EXPECT_NE(this->TextOf(painter.GetValue(*box, 0, Part::Icon)), "box");
}

// Rows of a new view stand in no folder yet, and it answers for their look only where they do.

using OldPainterTest = PainterTest<OldGeneration>;

TEST_F(OldPainterTest, AnIconColumnShowsIcons) {
    EXPECT_TRUE(view.CreateIconColumn("icons", "", ""));
    auto* const icons = view.FindColumn("icons");
    EXPECT_TRUE(icons->CreateStyle("cell"));
    icons->FindStyle("cell")
        ->CreateElement("weight", "")
        ->SetViewProperty(view.FindViewProperty("weight"));
    zbtext::Painter painter(view, reader);

    EXPECT_EQ(TextOf(painter.GetValue(bolt, 2, Part::Icon)), "12");
    EXPECT_EQ(TextOf(painter.GetValue(bolt, 2, Part::Text)), "null");
}

TEST_F(OldPainterTest, APropertyWithTypedValuesKeepsTheirType) {
    reader.typed = &part.Property("weight");
    zbtext::Painter painter(view, reader);

    EXPECT_EQ(Shown(painter, bolt), "int 42");
}

TEST_F(OldPainterTest, RowsAreBoldAndItalicByTheDefaultProperties) {
    part["bolt"].Set("heavy", true);
    for (auto const* const name :
         {zbBrowserView::DEFAULT_BOLD_TEXT_PROP, zbBrowserView::DEFAULT_ITALIC_TEXT_PROP})
        EXPECT_TRUE(
            view.CreateVPConnect(view.FindViewProperty(name), &part, &part.Property("heavy")));
    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_TRUE(view.CreateFreeFolder(view.GetRootFreeFolder(), "box"));
    auto* const box = view.GetRootFreeFolder()->FindChildFreeFolder("box");
    EXPECT_TRUE(view.CreateList(box, &part, false));
    std::vector<zbIBrowserViewItem*> rows;
    view.GetChildren(rows, box);
    ASSERT_EQ(rows.size(), 2U);
    zbtext::Painter painter(view, reader);

    EXPECT_TRUE(painter.GetLook(*rows[0], 1).bold);
    EXPECT_TRUE(painter.GetLook(*rows[0], 1).italic);
    EXPECT_FALSE(painter.GetLook(*rows[1], 1).bold);
    EXPECT_FALSE(painter.GetLook(*rows[1], 1).italic);
}

} // namespace
} // namespace zbtest
