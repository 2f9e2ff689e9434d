#include "support/test_host.h"

#include <gtest/gtest.h>

#include "values/failure.h"

namespace torvane {

namespace {

std::string described(std::string_view text, std::string_view title, Buttons buttons) {
    return "\"" + std::string(text) + "\", title \"" + std::string(title) + "\", " +
           (buttons == Buttons::Ok ? "Ok" : "Yes/No");
}

}  // namespace

TestHost::TestHost(std::string programDirectory) : folder(std::move(programDirectory)) {}

TestHost::~TestHost() {
    verify();
}

void TestHost::verify() {
    for (const Box& box : boxes_)
        ADD_FAILURE() << "box that did not come: " << described(box.text, box.title, box.buttons);
    if (!saveNames_.empty()) ADD_FAILURE() << "save dialog that did not come";
    if (!openNames_.empty()) ADD_FAILURE() << "open dialog that did not come";
    boxes_.clear();
    saveNames_.clear();
    openNames_.clear();
}

Answer TestHost::box(std::string_view text, std::string_view title, Buttons buttons) {
    if (boxes_.empty()) {
        ADD_FAILURE() << "unexpected box: " << described(text, title, buttons);
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
    const Box expected = std::move(boxes_.front());
    boxes_.pop_front();
    EXPECT_EQ(described(text, title, buttons), described(expected.text, expected.title, expected.buttons));
    if (expected.meanwhile) expected.meanwhile();
    return expected.answer;
}

std::optional<std::string> TestHost::next(std::deque<std::optional<std::string>>& names, const char* dialog) {
    if (names.empty()) {
        ADD_FAILURE() << "unexpected " << dialog << " dialog";
        return std::nullopt;
    }
    const std::optional<std::string> name = names.front();
    names.pop_front();
    return name;
}

std::optional<std::string> TestHost::askSaveName(std::string_view proposed, std::string_view filter) {
    fileDialogs.push_back({std::string(proposed), std::string(filter)});
    return next(saveNames_, "save");
}

void TestHost::startProgram(const std::string& path) {
    if (missingPrograms) fail(Failure::FileNotFound, path);
    started.push_back(path);
}

std::optional<std::string> TestHost::askOpenName(std::string_view filter) {
    fileDialogs.push_back({"", std::string(filter)});
    return next(openNames_, "open");
}

}  // namespace torvane
