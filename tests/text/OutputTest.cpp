// SPDX-License-Identifier: MIT
#include "text/Output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <array>

namespace {

using zbtext::Output;

class CountingSink : public zbtext::Sink {
public:
    void Write(std::string_view text) override {
        ++calls;
        bytes += text.size();
    }
    int calls = 0;
    std::size_t bytes = 0;
};

TEST(Output, HandsEverythingOnAtTheEnd) {
    zbtext::StringSink sink;
    Output output(sink);
    output.Text() += "abc";
    output.Checkpoint();
    EXPECT_EQ(sink.GetText(), "");

    output.Finish();

    EXPECT_EQ(sink.GetText(), "abc");
}

TEST(Output, DropsWhatIsNotFinished) {
    zbtext::StringSink sink;
    {
        Output output(sink);
        output.Text() += "abc";
    }
    EXPECT_EQ(sink.GetText(), "");
}

TEST(Output, HoldsNoMoreThanABufferOfRows) {
    CountingSink sink;
    Output output(sink);
    std::size_t most = 0;
    for (int row = 0; row < 100000; ++row) {
        output.Text() += "0123456789";
        output.Checkpoint();
        most = std::max(most, output.Text().size());
    }
    output.Finish();

    EXPECT_EQ(sink.bytes, 1000000U);
    EXPECT_LE(most, 1U << 16U);
    EXPECT_LE(sink.calls, 20);
}

TEST(Output, StopsAtTheNextRowWhenToldTo) {
    CountingSink sink;
    std::atomic<bool> stop{false};
    Output output(sink, &stop);
    output.Checkpoint();

    stop = true;

    EXPECT_THROW(output.Checkpoint(), zbtext::Stopped);
    EXPECT_THROW(output.ThrowIfStopped(), zbtext::Stopped);
    EXPECT_THROW(output.Finish(), zbtext::Stopped);
}

class PipeTest : public testing::Test {
protected:
    PipeTest() {
        ::signal(SIGPIPE, SIG_IGN);
        EXPECT_EQ(::pipe(ends_.data()), 0);
    }
    ~PipeTest() override {
        ::close(ends_[0]);
        ::close(ends_[1]);
    }
    std::array<int, 2> ends_{};
};

TEST_F(PipeTest, BytesArriveAsTheyWereWritten) {
    zbtext::DescriptorSink sink(ends_[1]);
    sink.Write(std::string_view("a\0b", 3));

    std::array<char, 8> got{};
    ASSERT_EQ(::read(ends_[0], got.data(), got.size()), 3);
    EXPECT_EQ(std::string(got.data(), 3), std::string("a\0b", 3));
}

TEST_F(PipeTest, AReaderThatHasGoneIsNoError) {
    zbtext::DescriptorSink sink(ends_[1]);
    ::close(ends_[0]);

    EXPECT_THROW(sink.Write("x"), zbtext::ClosedPipe);
    ends_[0] = ::open("/dev/null", O_RDONLY);
}

TEST_F(PipeTest, TheStopFlagBreaksOffASlowReader) {
    std::atomic<bool> stop{true};
    zbtext::DescriptorSink sink(ends_[1], &stop);

    EXPECT_THROW(sink.Write("x"), zbtext::Stopped);
}

TEST(DescriptorSink, AFullDiskIsAnError) {
    auto const full = ::open("/dev/full", O_WRONLY);
    ASSERT_GE(full, 0);
    zbtext::DescriptorSink sink(full);

    try {
        sink.Write("x");
        FAIL() << "written to a full disk";
    } catch (zbtext::OutputError const& error) {
        EXPECT_STREQ(error.what(), "No space left on device");
    }
    ::close(full);
}

TEST(DescriptorSink, AClosedDescriptorIsAnError) {
    zbtext::DescriptorSink sink(-1);

    EXPECT_THROW(sink.Write("x"), zbtext::OutputError);
}

} // namespace
