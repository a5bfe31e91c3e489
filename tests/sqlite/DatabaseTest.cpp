// SPDX-License-Identifier: MIT
//! \file
//! Opening files: what is refused, with which words, and what is not touched.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/Database.h>
#include <zbBrowserView/sqlite/Error.h>

#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <random>
#include <thread>

namespace zbtest {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::Error;
using zbsqlite::OpenOptions;

//! The text of the `Error` that is expected; a failure of the test otherwise.
std::string ErrorOf(std::function<void()> const& action) {
    try {
        action();
    } catch (Error const& error) {
        EXPECT_EQ(error.what(), error.Where() + ": " + error.What());
        EXPECT_THAT(error.what(), Not(HasSubstr("\n")));
        return error.what();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

std::string OpenError(fs::path const& file, OpenOptions const& options = {}) {
    return ErrorOf([&] { Database(file, options); });
}

std::string RandomBytes(std::size_t size) {
    std::mt19937 generator(7);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(generator());
    return bytes;
}

OpenOptions Impatient() {
    OpenOptions options;
    options.busyTimeout = milliseconds(1);
    return options;
}

} // namespace

TEST(Database, SaysThatAMissingFileIsMissing) {
    TempFolder const folder;
    fs::path const file = folder / "nowhere.db";

    EXPECT_EQ(OpenError(file), file.string() + ": no such file");
    EXPECT_FALSE(fs::exists(file));
}

TEST(Database, RefusesAFolder) {
    TempFolder const folder;
    EXPECT_THAT(OpenError(folder.Path()), EndsWith(": is a folder, not a database"));
}

TEST(Database, RefusesAPipeWithoutWaitingForIt) {
    TempFolder const folder;
    fs::path const pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);

    EXPECT_THAT(OpenError(pipe), EndsWith(": is not a regular file"));
}

TEST(Database, RefusesAFileThatMayNotBeRead) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a)");
    fs::permissions(file, fs::perms::none);
    WithoutRoot const guard;
    if (!guard.IsInEffect())
        GTEST_SKIP() << "root may read everything, and cannot be shed here";

    EXPECT_THAT(OpenError(file), HasSubstr(": cannot be read ("));
}

TEST(Database, RefusesAFileThatIsNoDatabase) {
    TempFolder const folder;
    fs::path const file = folder / "letter.txt";
    WriteFile(file, std::string(5000, 'x'));

    EXPECT_THAT(OpenError(file), EndsWith(": not an SQLite database, or an encrypted one"));
}

TEST(Database, RefusesAVeryShortFileThatIsNoDatabase) {
    TempFolder const folder;
    fs::path const file = folder / "note.txt";
    WriteFile(file, "hello");

    EXPECT_THAT(OpenError(file), EndsWith(": not an SQLite database, or an encrypted one"));
}

TEST(Database, RefusesAnEncryptedFile) {
    TempFolder const folder;
    fs::path const file = folder / "secret.db";
    WriteFile(file, RandomBytes(16384));

    EXPECT_THAT(OpenError(file), EndsWith(": not an SQLite database, or an encrypted one"));
}

TEST(Database, TakesAnEmptyFileForAnEmptyDatabase) {
    TempFolder const folder;
    fs::path const file = folder / "empty.db";
    WriteFile(file, "");

    EXPECT_TRUE(DataCtrl(Database(file)).Sources().empty());
}

TEST(Database, SaysThatADamagedSchemaIsDamaged) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a)");
    std::string bytes = ReadFile(file);
    bytes.replace(100, 300, 300, '\xee'); // The root page of the schema.
    WriteFile(file, bytes);

    EXPECT_THAT(OpenError(file), HasSubstr(": the database is damaged ("));
}

TEST(Database, SaysThatAFileThatIsCutOffIsDamaged) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a); INSERT INTO t VALUES (zeroblob(100000))");
    fs::resize_file(file, fs::file_size(file) / 2 / 4096 * 4096);

    EXPECT_THAT(OpenError(file), HasSubstr(": the database is damaged ("));
}

TEST(Database, IsOpenForReadingOnly) {
    TempFolder const folder;
    Database const database(folder.Make("CREATE TABLE t(a)"));

    EXPECT_EQ(
        sqlite3_exec(database.Handle(), "INSERT INTO t VALUES (1)", nullptr, nullptr, nullptr),
        SQLITE_READONLY);
}

TEST(Database, LeavesFileAndFolderAsTheyWere) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a); INSERT INTO t VALUES (1)");
    std::string const before = ReadFile(file);
    {
        DataCtrl control{Database(file)};
        ASSERT_EQ(RowsOf(Find(control, "t")).size(), 1U);
    }
    EXPECT_EQ(ReadFile(file), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(Database, OpensAFileWhoseNameLooksLikeAnAddress) {
    TempFolder const folder;
    fs::path const file = folder / "a b%20c?mode=rwc#d&\xc3\xbc'\".db";
    OtherProgram(file).Run("CREATE TABLE t(a); INSERT INTO t VALUES (7)");

    DataCtrl control{Database(file)};

    EXPECT_THAT(RowsOf(Find(control, "t")), ElementsAre("int 7"));
}

TEST(Database, OpensAFileThroughARelativePath) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a)");

    Database const database(fs::relative(file));

    EXPECT_EQ(database.File(), fs::relative(file).string());
}

TEST(Database, SaysThatAnotherProgramIsWriting) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a)");
    OtherProgram writer(file);
    writer.Run("BEGIN EXCLUSIVE");

    EXPECT_THAT(OpenError(file, Impatient()),
                EndsWith(": another program is writing the database (waited 1 ms)"));
}

TEST(Database, WaitsUntilAnotherProgramHasWritten) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a)");
    OtherProgram writer(file);
    writer.Run("BEGIN EXCLUSIVE; INSERT INTO t VALUES (5)");
    std::thread finish([&writer] {
        std::this_thread::sleep_for(milliseconds(50));
        writer.Run("COMMIT");
    });
    OpenOptions patient;
    patient.busyTimeout = std::chrono::minutes(5);

    DataCtrl control{Database(file, patient)};
    finish.join();

    EXPECT_THAT(RowsOf(Find(control, "t")), ElementsAre("int 5"));
}

TEST(Database, StopsWaitingWhenItIsToldTo) {
    TempFolder const folder;
    fs::path const file = folder.Make("CREATE TABLE t(a)");
    OtherProgram writer(file);
    writer.Run("BEGIN EXCLUSIVE");
    std::atomic<bool> const stop = true;
    OpenOptions options;
    options.busyTimeout = std::chrono::hours(1);
    options.stop = &stop;
    try {
        Database const opened(file, options);
        FAIL() << "opened a locked file";
    } catch (Error const& error) {
        EXPECT_TRUE(error.IsInterrupted()) << error.what();
        EXPECT_EQ(error.What(), "stopped");
    }
}

TEST(Database, ReadsWhatStandsInAWriteAheadLogOnly) {
    TempFolder const folder;
    fs::path const file = folder.Make("PRAGMA journal_mode = WAL; CREATE TABLE t(a)");
    OtherProgram writer(file);
    writer.Run("PRAGMA wal_autocheckpoint = 0; INSERT INTO t VALUES (3)");
    ASSERT_GT(fs::file_size(file.string() + "-wal"), 0U);

    DataCtrl control{Database(file)};

    EXPECT_THAT(RowsOf(Find(control, "t")), ElementsAre("int 3"));
}

TEST(Database, ReadsAWriteAheadFileThatNobodyHasOpen) {
    TempFolder const folder;
    fs::path const file =
        folder.Make("PRAGMA journal_mode = WAL; CREATE TABLE t(a); INSERT INTO t VALUES (4)");
    ASSERT_FALSE(fs::exists(file.string() + "-wal"));

    DataCtrl control{Database(file)};

    EXPECT_THAT(RowsOf(Find(control, "t")), ElementsAre("int 4"));
}

TEST(Database, ReadsAWriteAheadFileOnReadOnlyMedia) {
    TempFolder const folder;
    fs::path const file =
        folder.Make("PRAGMA journal_mode = WAL; CREATE TABLE t(a); INSERT INTO t VALUES (4)");
    fs::permissions(folder.Path(), fs::perms::owner_write, fs::perm_options::remove);
    WithoutRoot const guard;
    if (!guard.IsInEffect())
        GTEST_SKIP() << "root may write everywhere, and cannot be shed here";

    DataCtrl control{Database(file)};

    EXPECT_THAT(RowsOf(Find(control, "t")), ElementsAre("int 4"));
}

TEST(Database, RefusesReadOnlyMediaWhenALogWouldBePassedOver) {
    TempFolder const original;
    fs::path const live = original.Make("PRAGMA journal_mode = WAL; CREATE TABLE t(a)");
    OtherProgram writer(live);
    writer.Run("PRAGMA wal_autocheckpoint = 0; INSERT INTO t VALUES (3)");
    TempFolder const folder;
    fs::path const file = folder / "test.db";
    fs::copy_file(live, file);
    fs::copy_file(live.string() + "-wal", file.string() + "-wal");
    fs::permissions(folder.Path(), fs::perms::owner_write, fs::perm_options::remove);
    WithoutRoot const guard;
    if (!guard.IsInEffect())
        GTEST_SKIP() << "root may write everywhere, and cannot be shed here";

    EXPECT_THAT(OpenError(file), HasSubstr("write-ahead log"));
}

TEST(Database, RefusesAFileWithAWriteThatWasCutShort) {
    TempFolder const original;
    fs::path const live = original.Make("CREATE TABLE t(a); INSERT INTO t VALUES (1)");
    OtherProgram writer(live);
    writer.Run("BEGIN; UPDATE t SET a = 2");
    ASSERT_EQ(sqlite3_db_cacheflush(writer.Handle()), SQLITE_OK);
    TempFolder const folder;
    fs::path const file = folder / "test.db";
    fs::copy_file(live, file);
    fs::copy_file(live.string() + "-journal", file.string() + "-journal");

    EXPECT_THAT(OpenError(file), HasSubstr("a write to the database was cut short"));
}

TEST(Database, AttachesASecondFileAsASchemaOfItsOwn) {
    TempFolder const folder;
    fs::path const other = folder / "other.db";
    OtherProgram(other).Run("CREATE TABLE b(x); INSERT INTO b VALUES (2)");
    Database database(folder.Make("CREATE TABLE a(x)"));

    database.Attach(other, "se\"cond");
    DataCtrl control(std::move(database));

    EXPECT_THAT(SourceNames(control), ElementsAre("a", "b"));
    EXPECT_EQ(Find(control, "b").Declaration().schema, "se\"cond");
    EXPECT_THAT(RowsOf(Find(control, "b")), ElementsAre("int 2"));
}

TEST(Database, StaysUsableWhenASecondFileIsRefused) {
    TempFolder const folder;
    fs::path const other = folder / "letter.txt";
    WriteFile(other, std::string(5000, 'x'));
    Database database(folder.Make("CREATE TABLE a(x)"));

    std::string const error = ErrorOf([&] { database.Attach(other, "second"); });

    EXPECT_THAT(error, StartsWith(other.string() + ": not an SQLite database"));
    EXPECT_THAT(SourceNames(DataCtrl(std::move(database))), ElementsAre("a"));
}

TEST(Database, DoesNotLetAViewLoadCode) {
    TempFolder const folder;
    fs::path const file =
        folder.Make("CREATE VIEW v AS SELECT load_extension('/no/such/library.so') AS x");
    DataCtrl control{Database(file)};
    EXPECT_THAT(LoadError(Find(control, "v")).What(), HasSubstr("unsafe use of load_extension"));
}

} // namespace zbtest
