#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "datastore/data_access.h"
#include "datastore/store.h"
#include "support/data_folder.h"
#include "support/test_host.h"
#include "values/failure.h"

namespace torvane {

// A test of records on a database of its own, without a window.
class RecordTest : public ::testing::Test {
protected:
    void TearDown() override { host.verify(); }

    // The failure of an act; the test fails when there is none.
    static RuntimeFailure failureOf(const std::function<void()>& act) {
        try {
            act();
        } catch (const RuntimeFailure& failure) {
            return failure;
        }
        ADD_FAILURE() << "a failure was expected";
        return {0, ""};
    }
    static int numberOf(const std::function<void()>& act) { return failureOf(act).number(); }

    DataFolder folder;
    TestHost host{folder.path()};
    Store store;
    DataAccess access{host, store};
};

}  // namespace torvane
