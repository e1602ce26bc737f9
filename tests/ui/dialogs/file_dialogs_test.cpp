#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <dirent.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <kvt/ui/dialogs/file_dialogs.h>

#include "support/event_script.h"
#include "support/events.h"
#include "support/sprite_file.h"
#include "support/surfaces.h"
#include "support/temp_dir.h"
#include "support/theme.h"

namespace {

// The dialog sits inside a margin of the surface; the points below are
// inside its widgets (the bodies' layout: list from y + 30 in 16-pixel
// rows, the save field 70 above the bottom, buttons 32 above it).
constexpr int kX = 10, kY = 8, kW = 160, kH = 150, kSurfaceW = 180, kSurfaceH = 170;
constexpr int kButtonW = (kW - 16) >> 1, kButtonsY = kY + kH - 18;
constexpr int kOkX = kX + 4 + kButtonW / 2, kCancelX = kX + 12 + kButtonW + kButtonW / 2;
constexpr int kListX = kX + 20, kRow0Y = kY + 36, kFieldY = kY + kH - 56;
constexpr unsigned kTimeoutSeconds = 20;
constexpr int kSpare = 32; // bytes after KVT_DIALOG_RESULT_SIZE that must stay untouched
constexpr char kSpareByte = 0x5A;

// SDL_WaitEvent on an empty queue never returns: fail loudly instead.
extern "C" void OnAlarm(int)
{
    const char message[] = "\nfile dialog test: the dialog is waiting on an empty event queue; "
                           "it did not end on the pushed events\n";
    ssize_t ignored = write(2, message, sizeof message - 1);
    (void)ignored;
    std::abort();
}

// Armed for the life of a test that runs dialogs.
struct HangGuard {
    HangGuard()
    {
        std::signal(SIGALRM, OnAlarm);
        alarm(kTimeoutSeconds);
    }
    ~HangGuard() { alarm(0); }
};

using kvt_test::Click;
using kvt_test::Events;
using kvt_test::Join;
using kvt_test::Type;
using DialogCall = bool (*)(SDL_Surface *, int, int, int, int, CUITheme *, KVT_Sprite *,
                            const char *, const char *, const char *, char *, const char *);

const Events kOk = Click({kOkX, kButtonsY}), kCancel = Click({kCancelX, kButtonsY});
const Events kToField = Click({kListX, kFieldY}), kRow0 = Click({kListX, kRow0Y});

constexpr int kMarkerCode = 0x6b7674;

// Empties the queue; "" when it held exactly the marker.
std::string LeftInQueue()
{
    std::string left;
    SDL_Event event;
    int n = 0;
    for (; SDL_PollEvent(&event) == 1; ++n)
        if (n > 0 || event.type != SDL_USEREVENT || event.user.code != kMarkerCode)
            left += "event type " + std::to_string(event.type) + " at " + std::to_string(n) + "; ";
    return n == 0 ? "no marker" : left;
}

struct Outcome {
    bool answer;
    std::string result, leftInQueue, changedUnder, changedBeside;
    bool spareIntact;
};

// The first pixel of the dialog's rectangle that differs from `before`.
std::string ChangedUnderDialog(const kvt_test::GuardedSurface &surface,
                               const std::vector<Uint8> &before)
{
    std::vector<Uint8> now = surface.PixelBytes();
    size_t bytes = surface.get()->format->BytesPerPixel, rowBytes = kW * bytes;
    for (int y = kY; y < kY + kH; ++y) {
        size_t from = (size_t(y) * kSurfaceW + kX) * bytes;
        auto at = std::mismatch(&now[from], &now[from] + rowBytes, &before[from]).first;
        if (at != &now[from] + rowBytes)
            return "pixel (" + std::to_string(kX + (at - &now[from]) / bytes) + ", " +
                   std::to_string(y) + ") under the dialog";
    }
    return "";
}

// Every test runs at every depth over a surface of random bytes, which
// each dialog must leave as it found it whatever the outcome.
class FileDialogTest : public ::testing::TestWithParam<kvt_test::FormatCase> {
protected:
    void SetUp() override
    {
        ASSERT_NE(SDL_SetVideoMode(kSurfaceW, kSurfaceH, 32, SDL_SWSURFACE), nullptr);
        LeftInQueue();
        ASSERT_TRUE(dir.ok());
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, surface.get()->format));
        for (int i = 0; i < tile->w * tile->h; ++i)
            static_cast<Uint32 *>(tile->pixels)[i] = Uint32(i) * 0x0a1b2c;
        theme.background = tile;
        std::mt19937 rng(7);
        surface.FillRandom(rng);
    }
    void TearDown() override
    {
        LeftInQueue();
        font.FreeFrames();
        SDL_FreeSurface(tile);
    }
    void MakeFiles(std::initializer_list<const char *> names)
    {
        for (const char *name : names)
            ASSERT_TRUE(dir.MakeFile(name)) << name;
    }

    // Pushes `events` and a marker, then runs the dialog over them; the
    // marker alone must be left: the dialog took every event up to the one
    // that ended it, and no more.
    // The buffer has KVT_DIALOG_RESULT_SIZE bytes and one more for each
    // character of `extension` beyond KVT_DIALOG_EXTENSION_MAX, then the
    // spare bytes that must stay untouched.
    Outcome Run(DialogCall call, const char *extension, const Events &events)
    {
        SDL_Event marker{};
        marker.user = {SDL_USEREVENT, kMarkerCode, nullptr, nullptr};
        for (SDL_Event event : events)
            EXPECT_EQ(SDL_PushEvent(&event), 0) << "the event queue is full";
        SDL_PushEvent(&marker);
        const size_t beyond =
            std::max<size_t>(strlen(extension), KVT_DIALOG_EXTENSION_MAX) - KVT_DIALOG_EXTENSION_MAX;
        std::vector<char> buffer(KVT_DIALOG_RESULT_SIZE + beyond + kSpare, kSpareByte);
        strcpy(buffer.data(), "caller's");
        std::vector<Uint8> before = surface.PixelBytes();
        bool answer = call(surface, kX, kY, kW, kH, &theme, &font, "Files", "OK", "Cancel",
                           buffer.data(), extension);
        bool spareIntact = std::all_of(buffer.end() - kSpare, buffer.end(),
                                       [](char c) { return c == kSpareByte; });
        return {answer, buffer.data(), LeftInQueue(), ChangedUnderDialog(surface, before),
                kvt_test::ChangedOutside(surface, before, SDL_Rect{kX, kY, kW, kH}), spareIntact};
    }

    HangGuard guard;
    kvt_test::TempCurrentDir dir;
    kvt_test::GuardedSurface surface{GetParam(), kSurfaceW, kSurfaceH, 4};
    SDL_Surface *tile = SDL_CreateRGBSurface(0, 7, 5, 32, 0xff0000, 0xff00, 0xff, 0);
    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font;
};

// Whatever the answer: every event taken up to the last one, the caller's
// surface and the bytes after the result as they were.
void ExpectBounded(const Outcome &got, const std::string &what)
{
    EXPECT_EQ(got.leftInQueue, "") << what << ": the dialog ended early or ate too much";
    EXPECT_EQ(got.changedUnder, "") << what << ": the dialog's rectangle was not put back";
    EXPECT_EQ(got.changedBeside, "") << what << ": the dialog drew beside its rectangle";
    EXPECT_TRUE(got.spareIntact) << what << ": wrote past KVT_DIALOG_RESULT_SIZE";
}

void ExpectOutcome(const Outcome &got, bool answer, const std::string &result,
                   const std::string &what)
{
    EXPECT_EQ(got.answer, answer) << what;
    EXPECT_EQ(got.result, result) << what;
    ExpectBounded(got, what);
}

TEST_P(FileDialogTest, SaveAppliesTheExtensionRuleToTheTypedName)
{
    struct {
        const char *typed, *extension, *result;
    } const rows[] = {
        {"notes", "txt", "notes.txt"},       {"notes.txt", "txt", "notes.txt"},
        {"notestxt", "txt", "notestxt"},     {"txt.txt", "txt", "txt.txt.txt"},
        {"notes.txt.bak", "txt", "notes.txt.bak.txt"},
        {"notes", "", "notes."},             {"notes", ".txt", "notes..txt"},
        {"notes.txt", ".txt", "notes.txt"},  {"notes.doc", "txt", "notes.doc.txt"},
    };
    for (const auto &row : rows) {
        Events typeAndOk = Join({kToField, Type(row.typed), kOk});
        ExpectOutcome(Run(KVT_SaveFileDialog, row.extension, typeAndOk), true, row.result,
                      std::string(row.typed) + " with \"" + row.extension + "\"");
    }
}

// How each dialog turns its body's ending into the answer and `result`;
// the bodies' handling of each event is tested in sdb_body_test.cpp. Two
// matching names and one that the filter hides; position 0 on the list,
// where OK on the untouched list lands, is the last matching name that the
// directory gives.
TEST_P(FileDialogTest, OutcomesOfEachWayOut)
{
    MakeFiles({"alpha.txt", "beta.dat", "gamma.txt"});
    std::string first;
    DIR *listing = opendir(".");
    for (dirent *entry = readdir(listing); entry != nullptr; entry = readdir(listing))
        if (strstr(entry->d_name, ".txt") != nullptr)
            first = entry->d_name;
    closedir(listing);
    struct {
        const char *what;
        DialogCall call;
        const char *extension;
        Events events;
        bool answer;
        std::string result;
    } const cases[] = {
        {"open: OK on the untouched list", KVT_OpenFileDialog, "txt", kOk, true, first},
        {"open: OK on an empty list", KVT_OpenFileDialog, "png", kOk, false, ""},
        {"open: Cancel after a choice", KVT_OpenFileDialog, "txt", Join({kRow0, kCancel}), false,
         ""},
        {"open: Return on the list, then on OK", KVT_OpenFileDialog, "txt", Type("\r\t\r"), true,
         first},
        {"open: quit, key release and motion swallowed", KVT_OpenFileDialog, "txt",
         Join({{SDL_Event{SDL_QUIT}, kvt_test::KeyUpEvent(SDLK_RETURN),
                kvt_test::MotionEvent(kCancelX, kButtonsY)}, kOk}), true, first},
        {"save: Cancel after typing", KVT_SaveFileDialog, "txt",
         Join({kToField, Type("x"), kCancel}), false, "caller's"},
        {"save: OK with an empty field", KVT_SaveFileDialog, "txt", kOk, false, ""},
        {"save: a chosen name, on OK", KVT_SaveFileDialog, "txt", Join({kRow0, kOk}), true, first},
    };
    for (const auto &c : cases)
        ExpectOutcome(Run(c.call, c.extension, c.events), c.answer, c.result, c.what);
}

// The extension closes the name and also opens it, so the save dialog
// appends it: the longest result the header allows for, with the longest
// extension it counts on and with a longer one, for which the caller adds
// a byte per character.
TEST_P(FileDialogTest, TheLongestNamesFitTheDocumentedBuffer)
{
    for (int extensionLength : {KVT_DIALOG_EXTENSION_MAX, KVT_DIALOG_EXTENSION_MAX + 5}) {
        std::string extension(size_t(extensionLength), 'e');
        std::string name = extension +
                           std::string(KVT_DIALOG_NAME_MAX - 2 * extension.size(), 'n') +
                           extension;
        MakeFiles({name.c_str()});
        const std::string what = std::to_string(extensionLength) + "-character extension";
        ExpectOutcome(Run(KVT_OpenFileDialog, extension.c_str(), kOk), true, name, "open, " + what);
        ExpectOutcome(Run(KVT_SaveFileDialog, extension.c_str(),
                          Join({kRow0, kOk})),
                      true, name + "." + extension, "save, " + what);
        ASSERT_EQ(unlink(name.c_str()), 0);
    }
}

// With video shut down SDL has no event queue and SDL_WaitEvent fails:
// classic SDL answers 0, sdl12-compat -1. The test first asks SDL that
// its wait does fail, then runs both dialogs on such waits.
TEST_P(FileDialogTest, AFailedWaitLeavesTheResultAndTheSurfaceAlone)
{
    MakeFiles({"alpha.txt"});
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    SDL_Event unused;
    const int wait = SDL_WaitEvent(&unused);
    EXPECT_NE(1, wait) << "SDL waited for an event with video shut down";
    Outcome open = Run(KVT_OpenFileDialog, "txt", {});
    Outcome save = Run(KVT_SaveFileDialog, "txt", {});
    ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_VIDEO), 0);
    std::signal(SIGINT, SIG_DFL); // as the test program had them before
    std::signal(SIGTERM, SIG_DFL);
    EXPECT_FALSE(open.answer || save.answer);
    EXPECT_EQ(open.result + "|" + save.result, "caller's|caller's");
    EXPECT_EQ(open.changedUnder + open.changedBeside + save.changedUnder + save.changedBeside, "");
}

// What would end a dialog before the end of a batch: the keys that press
// the focused widget, and the pointer anywhere on the buttons' row.
bool MayEndTheDialog(const SDL_Event &event)
{
    if (event.type == SDL_KEYDOWN) {
        const SDLKey sym = event.key.keysym.sym;
        return sym == SDLK_RETURN || sym == SDLK_KP_ENTER || sym == SDLK_SPACE;
    }
    const bool button = event.type == SDL_MOUSEBUTTONDOWN || event.type == SDL_MOUSEBUTTONUP;
    return button && event.button.y >= kButtonsY - 16 && event.button.y < kY + kH;
}

// Batches of random events, from a fixed seed, each ending in OK or
// Cancel: the batch scrolls, picks, types and moves the focus, and then
// the caller's buffer and surface must have kept their bounds and the
// dialog's rectangle must come back.
TEST_P(FileDialogTest, RandomBatchesEndingInOkOrCancel)
{
    MakeFiles({"alpha.txt", "beta.txt", "gamma.dat", "delta.txt", "a much longer name.txt"});
    ASSERT_TRUE(dir.MakeDir("folder.txt"));
    std::mt19937 rng(20261123);
    for (int round = 0; round < 40; ++round) {
        std::vector<Uint8> bytes(kvt_test::kStepBytes * (rng() % 100));
        for (Uint8 &byte : bytes)
            byte = Uint8(rng());
        Events batch;
        for (const auto &step :
             kvt_test::DecodeEventScript(bytes.data(), bytes.size(), kSurfaceW, kSurfaceH))
            if (!MayEndTheDialog(step.event))
                batch.push_back(step.event);
        const bool ok = (rng() & 1) != 0, open = (round & 1) != 0;
        batch = Join({batch, ok ? kOk : kCancel});
        const Outcome got =
            Run(open ? KVT_OpenFileDialog : KVT_SaveFileDialog, "txt", batch);
        const std::string what = std::string(open ? "open" : "save") + " round " +
                                 std::to_string(round) + (ok ? " ending in OK" : " ending in Cancel");
        ExpectBounded(got, what);
        EXPECT_TRUE(ok || !got.answer) << what;
        EXPECT_LT(got.result.size(), size_t(KVT_DIALOG_RESULT_SIZE)) << what;
        EXPECT_TRUE(surface.GuardsIntact()) << what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, FileDialogTest, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
