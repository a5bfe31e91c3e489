// SPDX-License-Identifier: MIT
//! \file
//! The answers of zbIBrowserView that a generation gives whatever it is asked, in one table.
#pragma once

#include "support/RecordingHost.h"

#include <zbBrowserView/zbIBrowserView.h>

#include <set>
#include <vector>

namespace zbtest {

enum class Answer {
    False,
    True,
    Null,
    Nothing,
    Works, //!< The generation offers the operation; what it answers depends.
};

//! Good arguments for every operation, so that no answer comes about for want of them. What an
//! operation could write to holds something, to show whether it did.
struct AnswerArguments {
    explicit AnswerArguments(RecordingHost& host)
        : part(&host.Source("part"))
        , tree(&host.Tree("tree", host.Source("part")))
        , reference(&host.Control().Reference("uses", host.Source("part"), host.Source("part")))
        , sources{part}
        , simpleOut{nullptr}
        , treesOut{nullptr}
        , sourceSet{part}
        , referenceSet{reference} {}

    bool OutputIsUntouched() const {
        return simpleOut.size() == 1 && treesOut.size() == 1 && sourceSet.size() == 1 &&
               referenceSet.size() == 1 && flagOut && textOut == "untouched";
    }

    zbIBrowserDataSourceSimple* part;
    zbIBrowserDataSourceHierarchical* tree;
    zbIBrowserDataReference* reference;
    zbIBrowserViewItemFreeFolder* folder = nullptr; //!< The view's root, where it has one.
    std::set<zbIBrowserDataSourceSimple*> sources;

    std::vector<zbIBrowserDataSourceSimple*> simpleOut;
    std::vector<zbIBrowserDataSourceHierarchical*> treesOut;
    std::set<zbIBrowserDataSource*> sourceSet;
    std::set<zbIBrowserDataReference*> referenceSet;
    bool flagOut = true;
    zbString textOut = "untouched";
};

struct ViewAnswer {
    char const* operation;
    Answer (*call)(zbIBrowserView&, AnswerArguments&);
    Answer ofNewViews;
    Answer ofOldViews;
};

inline Answer Say(bool answer) {
    return answer ? Answer::True : Answer::False;
}

inline Answer Say(void const* object) {
    return object == nullptr ? Answer::Null : Answer::Works;
}

// clang-format off
#define ZB_ANSWER(expression) [](zbIBrowserView& v, AnswerArguments& a) { static_cast<void>(a); return Say(v.expression); }
#define ZB_SILENCE(expression) [](zbIBrowserView& v, AnswerArguments&) { v.expression; return Answer::Nothing; }

//! In the order of the interface. What works in both generations is not listed.
inline std::vector<ViewAnswer> const viewAnswers{
    {"GetDataSourceSimpleList", ZB_ANSWER(GetDataSourceSimpleList(a.simpleOut)), Answer::False, Answer::Works},
    {"GetDataSourceSimpleByPointer", ZB_ANSWER(GetDataSourceSimple(a.part)), Answer::Null, Answer::Works},
    {"GetDataSourceSimpleByName", ZB_ANSWER(GetDataSourceSimple("part")), Answer::Null, Answer::Works},
    {"GetDataSourceSimpleFromHierarchical", ZB_ANSWER(GetDataSourceSimpleFromHierarchical("part")), Answer::Null, Answer::Works},
    {"DataSourceConnectTree", ZB_ANSWER(DataSourceConnect(a.tree)), Answer::False, Answer::Works},
    {"DataSourceConnectSimple", ZB_ANSWER(DataSourceConnect(a.part)), Answer::False, Answer::Works},
    {"DataSourceDisconnectAll", ZB_ANSWER(DataSourceDisconnectAll(true)), Answer::False, Answer::Works},
    {"DataSourceDisconnect", ZB_ANSWER(DataSourceDisconnect("part")), Answer::False, Answer::Works},
    {"GetDataSourceHierarchicalList", ZB_ANSWER(GetDataSourceHierarchicalList(a.treesOut)), Answer::False, Answer::Works},
    {"GetDataSourceHierarchicalByPointer", ZB_ANSWER(GetDataSourceHierarchical(a.tree)), Answer::Null, Answer::Works},
    {"GetDataSourceHierarchicalByName", ZB_ANSWER(GetDataSourceHierarchical("tree")), Answer::Null, Answer::Works},
    {"GetFilterNames", ZB_ANSWER(GetFilterNames(a.simpleOut)), Answer::False, Answer::Works},
    {"GetCurrentFilter", ZB_ANSWER(GetCurrentFilter(a.simpleOut)), Answer::False, Answer::Works},
    {"GetFilterByName", ZB_ANSWER(GetFilterByName(a.flagOut)), Answer::False, Answer::False},
    {"GetFilterMatchCase", ZB_ANSWER(GetFilterMatchCase(a.flagOut)), Answer::False, Answer::Works},
    {"GetFilterMatchWord", ZB_ANSWER(GetFilterMatchWord(a.flagOut)), Answer::False, Answer::Works},
    {"GetFilterUseRegExp", ZB_ANSWER(GetFilterUseRegExp(a.flagOut)), Answer::False, Answer::False},
    {"GetFilterLookupString", ZB_ANSWER(GetFilterLookupString(a.textOut)), Answer::False, Answer::Works},
    {"GetFilterMapNames", [](zbIBrowserView& v, AnswerArguments& a) { v.GetFilterMapNames(a.textOut); return Answer::Nothing; }, Answer::Nothing, Answer::Works},
    {"IsBrowserColDisabled", ZB_ANSWER(IsBrowserColDisabled()), Answer::False, Answer::Works},
    {"OnBrowserColPerform", ZB_SILENCE(OnBrowserColPerform()), Answer::Nothing, Answer::Works},
    {"ShowCollectorButton", ZB_SILENCE(ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD_BUTTON_113, false)), Answer::Nothing, Answer::Works},
    {"OnBrowserColDeselected", ZB_SILENCE(OnBrowserColDeselected()), Answer::Nothing, Answer::Works},
    {"OnBrowserColDisabled", ZB_SILENCE(OnBrowserColDisabled(true)), Answer::Nothing, Answer::Works},
    {"ResetCollector", ZB_SILENCE(ResetCollector()), Answer::Works, Answer::Nothing},
    {"SetCollectorEnable", ZB_SILENCE(SetCollectorEnable(true)), Answer::Works, Answer::Nothing},
    {"IsCollectorEnable", ZB_ANSWER(IsCollectorEnable()), Answer::Works, Answer::False},
    {"PerformCollectorOperation", ZB_ANSWER(PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE_FIRST)), Answer::Works, Answer::False},
    {"MakeCaptionBold", ZB_ANSWER(MakeCaptionBold(a.folder, a.part, "x")), Answer::False, Answer::False},
    {"CreateCheckBoxColumn", ZB_ANSWER(CreateCheckBoxColumn("c", "x")), Answer::True, Answer::True},
    {"CreateComboBoxColumn", ZB_ANSWER(CreateComboBoxColumn("c", "x")), Answer::True, Answer::True},
    {"SetCurrentFilter", ZB_ANSWER(SetCurrentFilter(a.sources)), Answer::False, Answer::Works},
    {"SetFilterLookupString", ZB_ANSWER(SetFilterLookupString("x")), Answer::False, Answer::Works},
    {"SetFilterMatchCaseFlag", ZB_ANSWER(SetFilterMatchCaseFlag(true)), Answer::False, Answer::Works},
    {"SetFilterMatchWordFlag", ZB_ANSWER(SetFilterMatchWordFlag(true)), Answer::False, Answer::Works},
    {"GetFilterMatchWordFlag", ZB_ANSWER(GetFilterMatchWordFlag(a.flagOut)), Answer::False, Answer::Works},
    {"ExpandFreeFolderList", ZB_ANSWER(ExpandFreeFolderList(a.folder, a.part, true)), Answer::False, Answer::Works},
    {"CollapseFreeFolderList", ZB_ANSWER(CollapseFreeFolderList(a.folder, a.part, true)), Answer::False, Answer::Works},
    {"SetListCaption", ZB_ANSWER(SetListCaption(nullptr, a.part, "x")), Answer::False, Answer::Works},
    {"SetSortingException", [](zbIBrowserView& v, AnswerArguments& a) { v.SetSortingException(a.folder, a.part, 1); return Answer::Nothing; }, Answer::Nothing, Answer::Works},
    {"SetCreateExpandedItem", [](zbIBrowserView& v, AnswerArguments& a) { v.SetCreateExpandedItem(a.folder, a.part, 1); return Answer::Nothing; }, Answer::Nothing, Answer::Works},
    {"SetFilterGrouping", ZB_ANSWER(SetFilterGrouping(true)), Answer::False, Answer::Works},
    {"GetFilterGrouping", ZB_ANSWER(GetFilterGrouping()), Answer::False, Answer::Works},
    {"RebuildFilterLists", ZB_ANSWER(RebuildFilterLists()), Answer::False, Answer::Works},
    {"GetFilterDataSource", ZB_ANSWER(GetFilterDataSource("part")), Answer::Null, Answer::Works},
    {"GetConnectedReferences", ZB_ANSWER(GetConnected(a.referenceSet)), Answer::Works, Answer::False},
    {"GetConnectedSources", ZB_ANSWER(GetConnected(a.sourceSet)), Answer::Works, Answer::False},
    {"ConnectReference", ZB_ANSWER(Connect(a.reference, true)), Answer::Works, Answer::False},
    {"ConnectSource", ZB_ANSWER(Connect(static_cast<zbIBrowserDataSource*>(a.part), true)), Answer::Works, Answer::False},
    {"FindConnected", ZB_ANSWER(FindConnected("part")), Answer::Works, Answer::Null},
    {"IsNewView", ZB_ANSWER(IsNewView()), Answer::True, Answer::False},
};

#undef ZB_ANSWER
#undef ZB_SILENCE
// clang-format on

} // namespace zbtest
