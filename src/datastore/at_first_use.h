#pragma once

#include <memory>
#include <tuple>

#include "datastore/data_access.h"

namespace torvane {

// A data class as a screen holds it: made when it is first asked for, and anew after a reset. `With` is what its
// constructor takes besides the access; all of it must outlive this.
template <class Record, class... With>
class AtFirstUse {
public:
    explicit AtFirstUse(const DataAccess& access, With&... with) : made_(access, with...) {}

    Record& operator()() {
        if (!record_) {
            record_ = std::apply([](auto&... with) { return std::make_unique<Record>(with...); }, made_);
        }
        return *record_;
    }
    void reset() { record_.reset(); }

private:
    std::tuple<const DataAccess&, With&...> made_;
    std::unique_ptr<Record> record_;
};

}  // namespace torvane
