#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/host.h"
#include "values/failure.h"

namespace torvane {

// A host for tests. Boxes are answered from a queue: each must come with just the text, title and buttons that were
// expected, in that order. A box that nobody expected, and an expected one that did not come, fail the test.
class TestHost : public Host {
public:
    explicit TestHost(std::string programDirectory = {}) : folder(std::move(programDirectory)) {}
    ~TestHost() override { verify(); }

    struct Box {
        std::string text;
        std::string title;
        Buttons buttons = Buttons::Ok;
        Answer answer = Answer::Ok;
        std::function<void()> meanwhile = {};  // runs while the box stands
    };
    void expect(Box box) { boxes_.push_back(std::move(box)); }
    // Fails the test if an expected box or file dialog has not come; the queues are empty afterwards.
    void verify() {
        for (const Box& box : boxes_) ADD_FAILURE() << "box that did not come: " << box.text;
        EXPECT_TRUE(names_.empty()) << "a file dialog did not come";
        boxes_.clear();
        names_.clear();
    }

    // The answers of the next file dialogs, in order; nothing is Cancel.
    using FileName = std::optional<std::string>;
    void answerName(FileName name) { names_.push_back(std::move(name)); }
    // What the file dialogs were given: the proposed name ("" for the open dialog) and the filter.
    using Asked = std::pair<std::string, std::string>;
    std::vector<Asked> fileDialogs;

    std::vector<std::string> started;  // programs
    bool missingPrograms = false;
    // Runs in place of the run-time error box.
    std::function<void(const RuntimeFailure&)> onRuntimeError = [](const RuntimeFailure&) {};
    int beeps = 0;
    Date now{2024, 3, 15};
    ShortDate style;
    std::string folder;
    std::int16_t rowsPerPage = 15;

    Answer box(std::string_view text, std::string_view title, Buttons buttons = Buttons::Ok) override {
        const Answer safe = buttons == Buttons::Ok ? Answer::Ok : Answer::No;
        const Box expected = boxes_.empty() ? Box{"(no box)", "", buttons, safe} : boxes_.front();
        if (!boxes_.empty()) boxes_.pop_front();
        EXPECT_EQ(text, expected.text);
        EXPECT_EQ(title, expected.title);
        EXPECT_EQ(buttons, expected.buttons);
        if (expected.meanwhile) expected.meanwhile();
        return expected.answer;
    }
    FileName askSaveName(std::string_view proposed, std::string_view filter) override {
        fileDialogs.push_back({std::string(proposed), std::string(filter)});
        EXPECT_FALSE(names_.empty()) << "a file dialog that nobody expected";
        if (names_.empty()) return {};
        const FileName name = names_.front();
        names_.pop_front();
        return name;
    }
    FileName askOpenName(std::string_view filter) override { return askSaveName("", filter); }
    void startProgram(const std::string& path) override {
        if (missingPrograms) fail(Failure::FileNotFound, path);
        started.push_back(path);
    }
    void runtimeErrorBox(const RuntimeFailure& failure) override { onRuntimeError(failure); }
    void beep() override { ++beeps; }
    Date today() const override { return now; }
    const ShortDate& shortDate() const override { return style; }
    const std::string& programDirectory() const override { return folder; }
    std::int16_t NoInList() const override { return rowsPerPage; }

private:
    std::deque<Box> boxes_;
    std::deque<FileName> names_;
};

// Boxes that a test expects, with their answers.
inline TestHost::Box ok(std::string text, std::string title = "Inventory") {
    return {std::move(text), std::move(title)};
}
inline TestHost::Box yes(std::string text, std::string title) {
    return {std::move(text), std::move(title), Buttons::YesNo, Answer::Yes};
}
inline TestHost::Box no(std::string text, std::string title) {
    return {std::move(text), std::move(title), Buttons::YesNo, Answer::No};
}

}  // namespace torvane
