#include "support/test_host.h"

#include <gtest/gtest.h>

#include "values/failure.h"

namespace torvane {

void TestHost::verify() {
    for (const Box& box : boxes_) ADD_FAILURE() << "box that did not come: " << box.text;
    EXPECT_TRUE(names_.empty()) << "a file dialog did not come";
    boxes_.clear();
    names_.clear();
}

Answer TestHost::box(std::string_view text, std::string_view title, Buttons buttons) {
    const Answer safe = buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    const Box expected = boxes_.empty() ? Box{"(no box)", "", buttons, safe} : std::move(boxes_.front());
    if (!boxes_.empty()) boxes_.pop_front();
    EXPECT_EQ(text, expected.text);
    EXPECT_EQ(title, expected.title);
    EXPECT_EQ(buttons, expected.buttons);
    if (expected.meanwhile) expected.meanwhile();
    return expected.answer;
}

TestHost::FileName TestHost::askSaveName(std::string_view proposed, std::string_view filter) {
    fileDialogs.push_back({std::string(proposed), std::string(filter)});
    FileName name;
    EXPECT_FALSE(names_.empty()) << "a file dialog that nobody expected";
    if (names_.empty()) return name;
    name.swap(names_.front());
    names_.pop_front();
    return name;
}

void TestHost::startProgram(const std::string& path) {
    if (missingPrograms) fail(Failure::FileNotFound, path);
    started.push_back(path);
}

TestHost::Box ok(std::string text, std::string title) {
    return {std::move(text), std::move(title)};
}

TestHost::Box yes(std::string text, std::string title) {
    return {std::move(text), std::move(title), Buttons::YesNo, Answer::Yes};
}

TestHost::Box no(std::string text, std::string title) {
    return {std::move(text), std::move(title), Buttons::YesNo, Answer::No};
}

}  // namespace torvane
