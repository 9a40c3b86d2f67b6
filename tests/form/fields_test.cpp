#include "form/fields.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/checked.h"
#include "tests/support/recording_ui.h"

namespace korvet {
namespace {

class Fields : public ::testing::Test {
  protected:
    static TextBox Box(const std::string& text) {
        TextBox box;
        box.name = "txtParameter_3";
        box.text = text;
        box.parameterIndex = 3;
        return box;
    }

    /// The one message of a failed check.
    [[nodiscard]] std::string OnlyText() const {
        return ui.messages.size() == 1 ? ui.messages[0].text
                                       : std::to_string(ui.messages.size()) + " messages";
    }

    void ExpectUserError(const std::string& text) {
        ASSERT_EQ(ui.messages.size(), 1U);
        EXPECT_EQ(ui.messages[0].text, text);
        EXPECT_EQ(ui.messages[0].title, "User Error");
        EXPECT_EQ(ui.messages[0].style, 48);
        EXPECT_EQ(ui.messages[0].box, 3);
        EXPECT_EQ(focus, "txtParameter_3");
    }

    RecordingUi ui;
    COptions options;
    std::string focus = "before";
    FieldContext context{ui, options, '.', focus};
};

TEST_F(Fields, SelectFieldTextSelectsAll) {
    TextBox box = Box("12.5");
    box.selectionStart = 2;
    SelectFieldText(box);
    EXPECT_EQ(box.selectionStart, 0U);
    EXPECT_EQ(box.selectionLength, 4U);
}

TEST_F(Fields, WhileTypingABeginningIsTolerated) {
    for (const char* text :
         {"", "-", "+", ".", ",", "-.", "1", "1.", "-.5", " 7 ", "1e", "-2.5E", "1e-", "1e+"}) {
        TextBox box = Box(text);
        CheckFieldChange(context, box);
        EXPECT_TRUE(ui.messages.empty()) << text;
        EXPECT_EQ(box.selectionLength, 0U) << text;
    }
}

TEST_F(Fields, WhileTypingAWordIsToldAtOnceAndTheFocusStays) {
    for (const char* text : {"x", "--", "e", ".e", "1,2", "..", " ", "1 2", "1e-e", "1e400", "in"}) {
        ui.messages.clear();
        TextBox box = Box(text);
        CheckFieldChange(context, box);
        ASSERT_EQ(OnlyText(), "Not a valid number") << text;
        EXPECT_EQ(ui.messages[0].style, 32);
        EXPECT_EQ(ui.messages[0].title, "Korvet Development");
        EXPECT_EQ(ui.messages[0].box, 3);
        EXPECT_EQ(box.selectionLength, box.text.size());
        EXPECT_EQ(focus, "before");
    }
}

TEST_F(Fields, TheLocalesMarkIsABeginningToo) {
    context.decimalMark = ',';
    for (const char* text : {",", "-,", "1,e", "3,5e-"}) {
        TextBox box = Box(text);
        CheckFieldChange(context, box);
        EXPECT_TRUE(ui.messages.empty()) << text;
    }
}

TEST_F(Fields, WhatIsPastedComesWithoutTheBlanksAroundIt) {
    EXPECT_EQ(WithoutPastedBlanks("0", "\t300\r\n"), "300");
    EXPECT_EQ(WithoutPastedBlanks("", "  12.5 \n"), "12.5");
    EXPECT_EQ(WithoutPastedBlanks("15", "1 2\t5"), "125") << "pasted in the middle";
    EXPECT_EQ(WithoutPastedBlanks("15", "15\n"), "15");
    EXPECT_EQ(WithoutPastedBlanks("15", "15 mm "), "15mm");
    EXPECT_EQ(WithoutPastedBlanks("0", "1 2"), "1 2") << "blanks within are the user's";
    EXPECT_EQ(WithoutPastedBlanks("12", "\xc2\xa0"), "\xc2\xa0");
}

TEST_F(Fields, WhatIsTypedStaysAsItIs) {
    EXPECT_EQ(WithoutPastedBlanks("12", "12 "), "12 ");
    EXPECT_EQ(WithoutPastedBlanks("12", " 12"), " 12");
    EXPECT_EQ(WithoutPastedBlanks("12 ", "12 5"), "12 5");
    EXPECT_EQ(WithoutPastedBlanks("12", "1"), "1");
    EXPECT_EQ(WithoutPastedBlanks(" 12", "12"), "12");
    EXPECT_EQ(WithoutPastedBlanks("12", ""), "");
    EXPECT_EQ(WithoutPastedBlanks("11", "111"), "111");
}

TEST_F(Fields, TheLocalesMarkIsPartOfANumber) {
    context.decimalMark = ',';
    TextBox box = Box("1,5");
    CheckFieldChange(context, box);
    EXPECT_EQ(CheckNumber(context, box), Passed);
    EXPECT_EQ(FieldValue(context, box), 1.5);
    box.text = "1.5";
    EXPECT_EQ(FieldValue(context, box), 1.5);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(Fields, TheStrictTestTakesNoBeginnings) {
    for (const char* text : {"", "-", ".", ",", "abc", "inf", "1e", "1e-", "-."}) {
        ui.messages.clear();
        focus = "before";
        TextBox box = Box(text);
        EXPECT_EQ(CheckNumber(context, box), Refused) << text;
        ASSERT_EQ(OnlyText(), "Not a valid number") << text;
        EXPECT_EQ(ui.messages[0].style, 32);
        EXPECT_EQ(ui.messages[0].title, "Korvet Development");
        EXPECT_EQ(focus, "txtParameter_3");
        EXPECT_EQ(box.selectionLength, box.text.size());
    }
    TextBox box = Box("7");
    focus = "before";
    EXPECT_EQ(CheckNumber(context, box), Passed);
    EXPECT_EQ(focus, "before");
}

TEST_F(Fields, TheValueOfAWordIsAnError) {
    EXPECT_THROW(static_cast<void>(FieldValue(context, Box("abc"))), ArithmeticError);
    EXPECT_THROW(static_cast<void>(FieldValue(context, Box(""))), ArithmeticError);
}

TEST_F(Fields, LimitsAreShownAtTheDecimalsOfTheOptions) {
    EXPECT_EQ(FormatLimit(context, 12.96), "13");
    EXPECT_EQ(FormatLimit(context, 12.34), "12.3");
    options.Decimals = 3;
    EXPECT_EQ(FormatLimit(context, 12.34567), "12.346");
    options.Decimals = 0;
    EXPECT_EQ(FormatLimit(context, 2.5), "2");
    context.decimalMark = ',';
    options.Decimals = 1;
    EXPECT_EQ(FormatLimit(context, 0.25), "0,2");
}

using LimitCheck = std::function<Outcome(const FieldContext&, TextBox&)>;

/// A check with a limit of Limit, the last text that it lets through, the first that it does not, and what it
/// says.
struct LimitCase {
    const char* name;
    LimitCheck check;
    std::vector<const char*> good;
    std::vector<const char*> bad;
    std::string message;
};

constexpr double Limit = 12.96;

const std::vector<LimitCase> LimitCases = {
    {"positive",
     [](const auto& c, TextBox& b) { return CheckPositive(c, b); },
     {"1e-300", "5"},
     {"0", "-0", "-1e-300"},
     "This dimension must be greater than 0"},
    {"less",
     [](const auto& c, TextBox& b) { return CheckLessThan(c, b, Limit); },
     {"12.959999999999", "-5"},
     {"12.96", "12.960000000001"},
     "This dimension must be less than 13"},
    {"greater",
     [](const auto& c, TextBox& b) { return CheckGreaterThan(c, b, Limit); },
     {"12.960000000001"},
     {"12.96", "12.959999999999", "0"},
     "This dimension must be greater than 13"},
    {"at most",
     [](const auto& c, TextBox& b) { return CheckAtMost(c, b, Limit); },
     {"12.96", "12.9"},
     {"12.960000000001"},
     "This dimension must be equal to or less than 13"},
    {"at least",
     [](const auto& c, TextBox& b) { return CheckAtLeast(c, b, Limit); },
     {"12.96", "13"},
     {"12.959999999999"},
     "This dimension must be equal to or greater than 13"},
    {"not equal",
     [](const auto& c, TextBox& b) { return CheckNotEqual(c, b, Limit); },
     {"12.960000000001", "12.959999999999"},
     {"12.96", "1296e-2"},
     "This dimension cannot be equal to 13"},
    {"integer",
     [](const auto& c, TextBox& b) { return CheckInteger(c, b); },
     {"0", "-7", "12", "1e3", "12.0"},
     {"12.000000001", "-0.5"},
     "This dimension must be an integer (whole number)"},
    {"room for thickness",
     [](const auto& c, TextBox& b) { return CheckBoxRoomForThickness(c, b, Limit); },
     {"12.96", "13"},
     {"12.959999999999", "-20"},
     "This dimension must be increased to allow for material thickness"}};

TEST_F(Fields, EachCheckTurnsExactlyAtItsLimit) {
    for (const LimitCase& limit : LimitCases) {
        SCOPED_TRACE(limit.name);
        for (const char* text : limit.good) {
            TextBox box = Box(text);
            EXPECT_EQ(limit.check(context, box), Passed) << text;
        }
        EXPECT_TRUE(ui.messages.empty());
        EXPECT_EQ(focus, "before");
        for (const char* text : limit.bad) {
            TextBox box = Box(text);
            EXPECT_EQ(limit.check(context, box), Refused) << text;
            ExpectUserError(limit.message);
            ui.messages.clear();
            focus = "before";
        }
        TextBox word = Box("word");
        EXPECT_EQ(limit.check(context, word), Refused);
        EXPECT_EQ(OnlyText(), "Not a valid number");
        EXPECT_EQ(focus, "txtParameter_3");
        ui.messages.clear();
        focus = "before";
    }
}

TEST_F(Fields, RoomForThicknessComparesTheMeanSizeThatItIsGiven) {
    TextBox box = Box("100");
    EXPECT_EQ(CheckRoomForThickness(context, box, 1.5, 1.5), Passed);
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_EQ(CheckRoomForThickness(context, box, 1.49, 1.5), Refused);
    ExpectUserError("This dimension must be increased to allow for material thickness");
}

TEST_F(Fields, ASizeWithoutAShapeIsRefusedWithItsReason) {
    TextBox box = Box("12");
    EXPECT_EQ(RefuseAsNotMakeable(context, box, "there is nothing left"), Refused);
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(ui.messages[0].text, "This fitting cannot be made with these sizes");
    EXPECT_EQ(ui.messages[0].detail, "there is nothing left");
    EXPECT_EQ(ui.messages[0].title, "Korvet Development");
    EXPECT_EQ(ui.messages[0].style, PlainBox);
    EXPECT_EQ(ui.messages[0].box, 3);
    EXPECT_EQ(ui.messages[0].control, "txtParameter_3");
    EXPECT_EQ(focus, "txtParameter_3");
    EXPECT_EQ(box.selectionLength, 2U);
}

TEST_F(Fields, NotSmallerMovesTheFocusWithoutAWord) {
    TextBox box = Box("100");
    EXPECT_EQ(CheckNotSmaller(context, 2, 2, box), Passed);
    EXPECT_EQ(focus, "before");
    EXPECT_EQ(CheckNotSmaller(context, 1.999, 2, box), Refused);
    EXPECT_EQ(focus, "txtParameter_3");
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(Fields, ABoxIsBroughtIntoSightBeforeTheMessageAboutIt) {
    std::vector<std::string> steps;
    context.reveal = [&](const TextBox& box) { steps.push_back("reveal " + box.name); };
    ui.onShow = [&](const MessageBox& message) { steps.push_back(message.text); };
    const std::vector<std::function<Outcome(TextBox&)>> checks = {
        [this](TextBox& box) { return CheckNumber(context, box); },
        [this](TextBox& box) { return CheckPositive(context, box); },
        [this](TextBox& box) { return CheckLessThan(context, box, 0); },
        [this](TextBox& box) { return CheckInteger(context, box); },
        [this](TextBox& box) { return CheckBoxRoomForThickness(context, box, 1); },
        [this](TextBox& box) { return CheckSegs(context, box); }};
    for (const auto& check : checks) {
        TextBox word = Box("word");
        steps.clear();
        EXPECT_EQ(check(word), Refused);
        EXPECT_EQ(steps, (std::vector<std::string>{"reveal txtParameter_3", "Not a valid number"}));
    }
    TextBox low = Box("0");
    steps.clear();
    EXPECT_EQ(CheckPositive(context, low), Refused);
    EXPECT_EQ(steps,
              (std::vector<std::string>{"reveal txtParameter_3", "This dimension must be greater than 0"}));
    steps.clear();
    CheckFieldChange(context, low);
    EXPECT_EQ(CheckNumber(context, low), Passed);
    EXPECT_EQ(CheckAtLeast(context, low, 0), Passed);
    EXPECT_TRUE(steps.empty());
    EXPECT_EQ(CheckNotSmaller(context, 1, 2, low), Refused);
    EXPECT_EQ(steps, (std::vector<std::string>{"reveal txtParameter_3"}));
}

TEST_F(Fields, SegsAreAWholeNumberFromOneToAHundredThousand) {
    for (const char* text : {"1", "24", "100000", "1e5", " 36 "}) {
        TextBox box = Box(text);
        EXPECT_EQ(CheckSegs(context, box), Passed) << text;
    }
    EXPECT_TRUE(ui.messages.empty());
    const std::vector<std::pair<const char*, const char*>> bad = {
        {"0", "This dimension must be greater than 0"},
        {"-24", "This dimension must be greater than 0"},
        {"0.5", "This dimension must be greater than 0"},
        {"1.5", "This dimension must be an integer (whole number)"},
        {"100000.5", "This dimension must be an integer (whole number)"},
        {"100001", "This dimension must be equal to or less than 100000"},
        {"1e300", "This dimension must be equal to or less than 100000"}};
    for (const auto& [text, message] : bad) {
        TextBox box = Box(text);
        EXPECT_EQ(CheckSegs(context, box), Refused) << text;
        ExpectUserError(message);
        ui.messages.clear();
    }
    TextBox word = Box("many");
    EXPECT_EQ(CheckSegs(context, word), Refused);
    EXPECT_EQ(OnlyText(), "Not a valid number");
}

TEST_F(Fields, MessagesFollowTheLanguage) {
    options.Language = "French";
    TextBox box = Box("20");
    EXPECT_EQ(CheckLessThan(context, box, 12.96), Refused);
    EXPECT_EQ(OnlyText(), "13");
    ui.messages.clear();
    EXPECT_EQ(CheckPositive(context, box = Box("0")), Refused);
    EXPECT_EQ(OnlyText(), "");
}

}  // namespace
}  // namespace korvet
