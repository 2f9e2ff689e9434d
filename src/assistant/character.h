#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
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
        QByteArray drawing;  // SVG text of the character's size
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
    // The steps of an animation, at least one; null when the character has none of that name.
    const std::vector<Step>* animation(std::string_view name) const;

private:
    friend class CharacterReader;
    QSize size_;
    std::map<QString, std::vector<Step>> animations_;
};

}  // namespace torvane
