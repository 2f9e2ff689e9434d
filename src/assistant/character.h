#pragma once

#include <QByteArray>
#include <QSize>
#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace torvane {

// An animated character: drawings put together from parts, and animations that show them for a time each. It has at
// least the animations Idle, Speaking, Arriving and Leaving.
class Character {
public:
    struct Step {
        int frame = 0;
        std::chrono::milliseconds time{};
    };

    // The numbers of the failures of `load`.
    static constexpr int missing = 53;
    static constexpr int damaged = 321;

    // Reads a character file. A RuntimeFailure that names the file, and for a damaged one the line and the fault, when
    // it can't be read or is not whole and sound in every part.
    static Character load(const std::string& file);

    // In pixels at scale 1.
    QSize size() const { return size_; }
    int frameCount() const { return static_cast<int>(frames_.size()); }
    // The drawing of a frame as SVG text of that size. `frame` is below frameCount.
    QByteArray drawing(int frame) const;
    // The steps of an animation, at least one; null when the character has none of that name.
    const std::vector<Step>* animation(std::string_view name) const;

private:
    friend class CharacterReader;
    struct Frame {
        int dx = 0;
        int dy = 0;
        std::vector<int> parts;
    };
    QSize size_;
    std::vector<QByteArray> parts_;
    std::vector<Frame> frames_;
    std::map<std::string, std::vector<Step>, std::less<>> animations_;
};

}  // namespace torvane
