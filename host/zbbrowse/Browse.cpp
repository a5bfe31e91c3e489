// SPDX-License-Identifier: MIT
#include "zbbrowse/Browse.h"

#include "text/CsvWriter.h"
#include "text/JsonWriter.h"
#include "text/TextWriter.h"
#include "zbbrowse/Complaint.h"
#include "zbbrowse/Interrupt.h"
#include "zbbrowse/OpenView.h"
#include "zbbrowse/Options.h"
#include "zbbrowse/OutputFile.h"
#include "zbbrowse/Terminal.h"
#include "zbbrowse/Watch.h"

#include <zbBrowserView/platform/zbString.h>

#include <fcntl.h>
#include <unistd.h>

#include <memory>
#include <new>

namespace zbbrowse {

namespace {

constexpr int kTrouble = 2;
constexpr std::size_t kAllRows = static_cast<std::size_t>(-1);

//! What is selected is worth seeing whole.
std::size_t RowsInPicture(Options const& options) {
    constexpr std::size_t usual = 3;
    return options.limit.value_or(options.select.empty() ? usual : kAllRows);
}

std::unique_ptr<zbtext::ListWriter> MakeWriter(Format format, zbtext::Output& output,
                                               zbtext::TextStyle const& style) {
    switch (format) {
    case Format::Json:
        return std::make_unique<zbtext::JsonWriter>(output);
    case Format::JsonLines:
        return std::make_unique<zbtext::JsonLinesWriter>(output);
    case Format::Csv:
        return std::make_unique<zbtext::CsvWriter>(output);
    case Format::Text:
        break;
    }
    return std::make_unique<zbtext::TextWriter>(output, style);
}

//! The line that Ctrl-C breaks off may be coloured, and the prompt should not stand in it.
void PrepareTerminal(OutputFile const& file) {
    if (IsTerminal(file.GetDescriptor()))
        Interrupt::SetFarewell(STDOUT_FILENO, "\x1b[0m\n");
}

int ReportFaults(OpenView const& view) {
    auto const faults = view.GetFaults();
    for (auto const& fault : faults)
        Complain(fault);
    return faults.empty() ? 0 : kTrouble;
}

//! A picture shows what can be shown, and marks what cannot; the exit status tells of it.
int WriteView(OpenView const& view, Options const& options, zbtext::ListWriter& writer) {
    writer.WriteView(view.ReadView(RowsInPicture(options), !writer.NamesRows()));
    return ReportFaults(view);
}

int WriteLists(OpenView const& view, Options const& options, zbtext::ListWriter& writer) {
    if (auto const status = ReportFaults(view); status != 0)
        return status;
    auto const rows = options.limit.value_or(kAllRows);
    writer.WriteLists(view.ReadLists(rows, !writer.NamesRows()));
    return 0;
}

//! Comes back only if there is nothing to watch.
int WatchLists(Options const& options, Interrupt const& interrupt) {
    auto const& stop = interrupt.GetFlag();
    OpenView view(options, stop);
    OutputFile const file({}, options.file);
    PrepareTerminal(file);
    zbtext::DescriptorSink sink(file.GetDescriptor(), &stop);
    zbtext::Output output(sink, &stop);
    Watch watch(view, options.format, output);
    view.Load();
    if (auto const status = ReportFaults(view); status != 0 && view.GetListCount() != 0)
        return status;
    Complain("watching " + options.file);
    try {
        watch.Run(file.GetDescriptor());
    } catch (zbtext::OutputError const& error) {
        throw Complaint(file.GetName() + ": " + error.what());
    }
}

int Show(Options const& options, Interrupt const& interrupt) {
    auto const& stop = interrupt.GetFlag();
    OpenView view(options, stop);
    bool const isPicture = view.GetListCount() == 0;
    if (options.format == Format::Csv && view.GetListCount() > 1)
        throw Complaint("--format csv has room for one --list only");

    OutputFile file(options.output, options.file);
    PrepareTerminal(file);
    zbtext::DescriptorSink sink(file.GetDescriptor(), &stop);
    zbtext::Output output(sink, &stop);
    auto const style = options.output.empty() ? GetTextStyle(STDOUT_FILENO) : zbtext::TextStyle{};
    auto const writer = MakeWriter(options.format, output, style);

    view.Load();
    try {
        auto const status =
            isPicture ? WriteView(view, options, *writer) : WriteLists(view, options, *writer);
        output.Finish();
        if (status == 0 || isPicture)
            file.Commit();
        if (options.newGeneration)
            Complain("a view of the new generation has no lists yet: only its folders are shown");
        return status;
    } catch (zbtext::OutputError const& error) {
        throw Complaint(file.GetName() + ": " + error.what());
    }
}

//! A standard descriptor that is closed would be given to the next file that is opened, and what is
//! meant for the user would go into it. On this one, every write fails as it should.
void FillStandardDescriptors() {
    for (int const descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) == -1)
            ::open("/dev/null", O_RDONLY);
    }
}

int ComplainAndFail(std::string const& what) {
    Complain(what);
    return kTrouble;
}

} // namespace

int Browse(int argc, char const* const* argv) {
    int status = 0;
    auto const options = ReadOptions(argc, argv, status);
    if (!options)
        return status;
    FillStandardDescriptors();
    Interrupt const interrupt;
    try {
        return options->watch ? WatchLists(*options, interrupt) : Show(*options, interrupt);
    } catch (zbtext::Stopped const&) {
        interrupt.End();
    } catch (zbtext::ClosedPipe const&) {
        return 0;
    } catch (zbsqlite::Error const& error) {
        if (error.IsInterrupted())
            interrupt.End();
        return ComplainAndFail(error.what());
    } catch (std::bad_alloc const&) {
        return ComplainAndFail(options->file + ": not enough memory");
    } catch (std::exception const& error) {
        return ComplainAndFail(error.what());
    } catch (zbString const& message) {
        return ComplainAndFail(message.c_str());
    } catch (char const* message) {
        return ComplainAndFail(message);
    }
}

} // namespace zbbrowse
