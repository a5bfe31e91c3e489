// SPDX-License-Identifier: MIT
// Random changes against naive models, whose lists are sorted as a whole by the documented keys.
#include "SortedRowsTest.h"
#include "support/Generations.h"

#include <algorithm>
#include <array>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <tuple>
#include <utility>

namespace {

using zbtest::Names;
using zbtest::RecordingItem;
using zbtest::RecordingSource;

//! A list as it is stored, and which of its items are in order.
class ListModel {
public:
    void Add(RecordingItem& item) { stored_.push_back(&item); }
    void Remove(RecordingItem const& item) {
        std::erase(stored_, &item);
        hasLost_ = true;
        inOrder_.erase(&item);
        changed_.erase(&item);
    }
    void SetUnsorted() {
        inOrder_.clear();
        changed_.clear();
    }
    //! It is sorted into the others, behind those that it ties with.
    void SetUnsorted(RecordingItem const& item) { inOrder_.erase(&item); }
    //! So it is, but only when another one has to be.
    void SetChanged(RecordingItem const& item) { changed_.insert(&item); }

    template <class Less>
    void Sort(Less less) {
        if (!std::exchange(hasLost_, false) && inOrder_.size() == stored_.size())
            return;
        for (auto const* const item : std::exchange(changed_, {}))
            inOrder_.erase(item);
        std::stable_partition(stored_.begin(), stored_.end(),
                              [this](auto const* item) { return inOrder_.contains(item); });
        std::stable_sort(stored_.begin(), stored_.end(), less);
        inOrder_ = {stored_.begin(), stored_.end()};
    }
    std::vector<RecordingItem*> const& Stored() const { return stored_; }

private:
    std::vector<RecordingItem*> stored_;
    std::set<RecordingItem const*> inOrder_;
    std::set<RecordingItem const*> changed_;
    bool hasLost_ = false;
};

//! The folder "box" shows the sources part and tool. Names and weights come from a few values, and
//! sources count their items each from 1, so that rows of the two may tie altogether.
class RandomRows : public testing::TestWithParam<unsigned> {
protected:
    RandomRows() {
        view.CreateFreeFolder(view.GetRootFreeFolder(), "box");
        box = view.GetRootFreeFolder()->FindChildFreeFolder("box");
        view.CreateViewProperty("weight");
        auto* const property = view.FindViewProperty("weight");
        for (auto* const source : {&part, &tool}) {
            view.DataSourceConnect(source);
            view.CreateList(box, source, false);
            view.CreateVPConnect(property, source, &source->Property("weight"));
        }
        byWeight.CreateStyle("cell");
        byWeight.FindStyle("cell")->CreateElement("text", "")->SetViewProperty(property);
        if (toolLeads)
            host.Control().sourceOrder = {&tool, &part};
    }
    ~RandomRows() override { zbbrowser::detail::SetCurrentSortProperty(nullptr); }

    void PlayAndCompare(int steps) {
        using Step = void (RandomRows::*)();
        constexpr std::array<Step, 11> all{
            &RandomRows::Create,  &RandomRows::Create,     &RandomRows::Delete,
            &RandomRows::Rebuild, &RandomRows::Change,     &RandomRows::Refresh,
            &RandomRows::Redraw,  &RandomRows::Renumber,   &RandomRows::SortView,
            &RandomRows::Flip,    &RandomRows::SortHandler};
        for (int i = 0; i < steps && !HasFailure(); ++i) {
            (this->*all[Below(all.size())])();
            if (Below(20) == 0)
                Reset();
            if (Below(3) == 0)
                Compare();
        }
    }

private:
    unsigned Below(std::size_t end) { return static_cast<unsigned>(random() % end); }
    RecordingSource& AnySource() { return Below(2) == 0 ? part : tool; }
    zbIBrowserViewColumn& AnyColumn() { return Below(2) == 0 ? standard : byWeight; }
    std::string AnyName() { return {static_cast<char>('a' + Below(4))}; }
    //! Null: there is none.
    RecordingItem* AnyItem() {
        auto const& items = AnySource().All();
        return items.empty() ? nullptr : items[Below(items.size())];
    }

    // The steps. Each does the same to the view and to the model.

    RecordingItem& MakeItem(RecordingSource& source) {
        auto& item = source.Add(AnyName());
        if (Below(4) != 0)
            item.Set("weight", static_cast<int>(Below(4)));
        model.Add(item);
        return item;
    }
    void Create() {
        log << " create";
        host.Controller().OnDataItemCreated(&MakeItem(AnySource()), true);
    }
    void Delete() {
        auto* const item = AnyItem();
        if (item == nullptr)
            return;
        log << " delete";
        view.OnDataItemDeleted(item);
        model.Remove(*item);
        item->source->Delete(*item);
    }
    void Rebuild() {
        log << " rebuild";
        auto& source = AnySource();
        for (auto count = Below(12); count > 0; --count)
            MakeItem(source);
        source.dirty = true;
        host.Controller().OnAllDirtyDataListsRebuild(&view);
        source.dirty = false;
    }
    void Change() {
        auto* const item = AnyItem();
        if (item == nullptr)
            return;
        log << " change";
        item->Set("weight", static_cast<int>(Below(4)));
        host.Controller().OnDataItemSimpleUpdated(item);
        model.SetChanged(*item);
    }
    void Refresh() {
        auto* const item = AnyItem();
        if (item == nullptr)
            return;
        log << " refresh";
        item->Rename(AnyName());
        item->dirty = true;
        view.OnAllDirtyDataItemsRebuild();
        item->dirty = false;
        model.SetUnsorted(*item);
    }
    void Redraw() {
        auto& source = AnySource();
        if (source.All().empty())
            return;
        log << " redraw";
        source.All().front()->Rename(AnyName());
        source.dirty = true;
        view.RedrawAllDirtyDataLists(true);
    }
    void Renumber() {
        log << " renumber";
        view.OnDataSourceRenumbered(&AnySource());
        model.SetUnsorted();
    }
    void SortView() {
        auto& column = AnyColumn();
        ascending = Below(2) == 0;
        log << ' ' << column.GetName() << (ascending ? "" : " back");
        EXPECT_TRUE(view.SetAscendingOrder(&column, ascending));
        auto const isFirstTime = sortedBefore.insert(&column).second;
        if (isFirstTime || sorted != &column)
            model.SetUnsorted();
        sorted = &column;
    }
    //! Past the view, so that no list is marked as unsorted.
    void SortHandler() {
        auto& column = AnyColumn();
        ascending = Below(2) == 0;
        log << " handler:" << column.GetName() << (ascending ? "" : " back");
        EXPECT_TRUE(view.GetSortHandlerPtr()->SetAscendingOrder(&column, ascending));
        sorted = &column;
    }
    void Flip() {
        if (sorted == nullptr || !sortedBefore.contains(sorted))
            return;
        log << " flip";
        ascending = !ascending;
        EXPECT_TRUE(view.SetAscendingOrder(sorted, ascending));
    }
    void Reset() {
        log << " reset";
        view.GetSortHandlerPtr()->ResetSortedColumn();
        sorted = nullptr;
    }

    // Comparing

    auto KeysOf(RecordingItem const& item) const {
        auto const rank = toolLeads && item.source == &part ? 1 : 0;
        std::optional<int> weight;
        if (auto const value = item.Value("weight"); sorted == &byWeight && value)
            weight = value->GetInteger();
        return std::tuple(rank, weight, item.Name(), item.Id());
    }
    Names Expected() {
        if (sorted != nullptr)
            model.Sort([this](auto const* a, auto const* b) { return KeysOf(*a) < KeysOf(*b); });
        Names labels;
        labels.reserve(model.Stored().size());
        for (auto const* const item : model.Stored())
            labels.push_back(LabelOf(*item));
        if (sorted != nullptr && !ascending)
            std::reverse(labels.begin(), labels.end());
        return labels;
    }
    void Compare() {
        log << " read";
        std::vector<zbIBrowserViewItem*> rows;
        view.GetChildren(rows, box);
        Names labels;
        labels.reserve(rows.size());
        for (auto const* const row : rows)
            labels.push_back(LabelOf(*static_cast<RecordingItem*>(row->GetDataItemSimple())));
        EXPECT_EQ(labels, Expected()) << log.str();
    }
    static std::string LabelOf(RecordingItem const& item) {
        return item.source->Name() + std::to_string(item.Id());
    }

    std::mt19937 random{GetParam()};
    bool const toolLeads = Below(2) == 0;
    std::ostringstream log;
    zbtest::RecordingHost host;
    zbBrowserView& view = host.OldView();
    zbIBrowserViewItemFreeFolder* box = nullptr;
    RecordingSource& part = host.Source("part");
    RecordingSource& tool = host.Source("tool");
    zbIBrowserViewColumn& standard = *view.GetDefaultColumn();
    zbIBrowserViewColumn& byWeight = zbtest::ColumnOf(view, "weight");
    ListModel model;
    zbIBrowserViewColumn* sorted = nullptr; // Null: the view is not sorted
    bool ascending = true;
    std::set<zbIBrowserViewColumn*> sortedBefore; // By the view
};

TEST_P(RandomRows, AreThoseOfAListThatIsSortedAsAWhole) {
    PlayAndCompare(200);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRows, testing::Range(0U, 50U));

//! Child folders of the root, whose names differ in more than case.
template <class Generation>
class RandomFolders : public testing::Test {
protected:
    void PlayAndCompare(unsigned seed) {
        random.seed(seed);
        for (int i = 0; i < 100 && !this->HasFailure(); ++i) {
            if (Below(2) == 0)
                Create("f" + std::to_string(seed * 1000U + Below(1000)));
            if (Below(4) == 0)
                view.SetKeepChildrenFreeFoldersInOrderAsCreated(&root, keep = !keep);
            Compare(Below(2) == 0, Below(2) == 0);
        }
    }

private:
    unsigned Below(std::size_t end) { return static_cast<unsigned>(random() % end); }
    void Create(std::string name) {
        if (root.FindChildFreeFolder(name.c_str()) != nullptr)
            return;
        name.front() = Below(2) == 0 ? 'F' : 'f';
        EXPECT_TRUE(view.CreateFreeFolder(&root, name.c_str()));
        created.push_back(std::move(name));
    }
    static bool IsLess(std::string const& a, std::string const& b) {
        return a.substr(1) < b.substr(1);
    }
    void Compare(bool sorted, bool ascending) {
        auto expected = created;
        if (sorted && !keep) {
            std::stable_sort(expected.begin(), expected.end(), IsLess);
            if (!ascending)
                std::reverse(expected.begin(), expected.end());
        }
        std::vector<zbIBrowserViewItemFreeFolder*> folders;
        EXPECT_TRUE(root.GetChildFreeFolders(folders, sorted, ascending));
        Names names;
        names.reserve(folders.size());
        for (auto const* const folder : folders)
            names.emplace_back(folder->GetName());
        EXPECT_EQ(names, expected);
    }

    std::mt19937 random;
    zbtest::RecordingHost host;
    typename Generation::View& view = Generation::Make(host, "view");
    zbIBrowserViewItemFreeFolder& root = *view.GetRootFreeFolder();
    Names created;
    bool keep = true;
};

TYPED_TEST_SUITE(RandomFolders, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(RandomFolders, AreSortedByNameOrInTheOrderOfCreation) {
    for (unsigned seed = 0; seed < 10; ++seed)
        this->PlayAndCompare(seed);
}

} // namespace
