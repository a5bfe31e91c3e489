// SPDX-License-Identifier: MIT
//! \file
//! Each generation gives the answers of the table, and does nothing else meanwhile.
#include "ViewAnswers.h"

#include "support/SignalRecorder.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <ostream>

namespace zbtest {

static std::ostream& operator<<(std::ostream& out, Answer answer) {
    char const* const names[] = {"false", "true", "null", "nothing", "works"};
    return out << names[static_cast<int>(answer)];
}

namespace {

struct Case {
    ViewAnswer const* row;
    bool isNew;

    Answer Expected() const { return isNew ? row->ofNewViews : row->ofOldViews; }
};

std::vector<Case> FixedAnswers() {
    std::vector<Case> cases;
    for (ViewAnswer const& row : viewAnswers)
        for (bool const isNew : {true, false})
            if (Case const each{&row, isNew}; each.Expected() != Answer::Works)
                cases.push_back(each);
    return cases;
}

class FixedAnswer : public testing::TestWithParam<Case> {};

TEST_P(FixedAnswer, IsGivenAndNothingElseHappens) {
    // Given a view to which everything that could be wanted is connected
    RecordingHost host;
    host.Source("part").Items({"bolt_1", "nut_2"});
    AnswerArguments arguments(host);
    zbIBrowserView& view =
        GetParam().isNew ? static_cast<zbIBrowserView&>(host.NewView()) : host.OldView();
    view.Connect(static_cast<zbIBrowserDataSource*>(arguments.part), true);
    view.DataSourceConnect(arguments.part);
    view.DataSourceConnect(arguments.tree);
    arguments.folder = view.GetRootFreeFolder();
    SignalRecorder recorder(host);
    host.calls.Record(true);

    Answer const answer = GetParam().row->call(view, arguments);

    EXPECT_EQ(answer, GetParam().Expected());
    EXPECT_TRUE(arguments.OutputIsUntouched());
    EXPECT_THAT(recorder.take(), testing::IsEmpty());
    EXPECT_THAT(host.calls.take(), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfEachGeneration, FixedAnswer, testing::ValuesIn(FixedAnswers()),
                         [](testing::TestParamInfo<Case> const& each) {
                             return std::string(each.param.isNew ? "New_" : "Old_") +
                                    each.param.row->operation;
                         });

TEST(FixedAnswers, AreThoseOfTheTable) {
    auto const count = [](bool isNew) {
        auto const all = FixedAnswers();
        return std::count_if(all.begin(), all.end(),
                             [=](Case const& each) { return each.isNew == isNew; });
    };

    EXPECT_EQ(count(true), 42);
    EXPECT_EQ(count(false), 15);
}

} // namespace
} // namespace zbtest
