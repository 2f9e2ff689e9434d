#include "assistant/character.h"

#include <QFile>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>

#include "values/failure.h"

// A character file is UTF-8 text, read line by line:
//
//   file      = "torvane-character 1" size { part | frame | animation } "end"
//   size      = "size" width height                         pixels, 16 to 512
//   part      = "part" name, then indented lines            SVG shapes
//   frame     = "frame" name dx dy ":" part-name...         drawn in this order, shifted by dx and dy pixels
//   animation = "animation" name ":" (frame-name time)...   milliseconds, 20 to 10000
//
// Words stand between blanks. Empty lines and lines that begin with # are passed over. Names are used after they were
// given, and given once among their kind. Shapes are the plain ones listed below, which can reach nothing outside the
// file.

namespace torvane {

namespace {

constexpr qint64 mostBytes = 1 << 20;
constexpr std::size_t mostEntries = 500;
constexpr std::array requiredAnimations{"Idle", "Speaking", "Arriving", "Leaving"};
constexpr std::array shapes{"g", "path", "rect", "circle", "ellipse", "line", "polyline", "polygon"};

}  // namespace

class CharacterReader {
public:
    explicit CharacterReader(const std::string& file) : name_(file) {}

    Character read() {
        QFile file(QString::fromStdString(name_));
        if (!file.open(QIODevice::ReadOnly))
            throw RuntimeFailure(Character::missing, "The assistant's character can't be read: " + name_);
        if (file.size() > mostBytes) fault("the file is too large");
        const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
        bool whole = false;
        for (const QString& line : lines) {
            ++line_;
            const QString words = line.simplified();
            if (words.isEmpty() || line.startsWith('#')) continue;
            if (whole) fault("text behind the end");
            if (line.startsWith(' ')) {
                if (!inPart_) fault("a shape outside a part");
                character_.parts_.back() += line.toUtf8() + '\n';
            } else {
                finishPart();
                whole = entry(words.split(' '));
            }
        }
        if (!whole) fault("the end is missing");
        for (const char* needed : requiredAnimations)
            if (!character_.animation(needed)) fault("the animation " + QString(needed) + " is missing");
        return std::move(character_);
    }

private:
    // Gives true at the end.
    bool entry(const QStringList& words) {
        const QString& kind = words[0];
        if (!begun_) {
            if (words.size() != 2 || kind != "torvane-character" || words[1] != "1") fault("this is no character file");
            begun_ = true;
        } else if (character_.size_.isEmpty() != (kind == "size")) {
            fault("the size stands once, and first");
        } else if (kind == "size") {
            if (words.size() != 3) fault("a size is two numbers");
            character_.size_ = QSize(number(words[1], 16, 512), number(words[2], 16, 512));
        } else if (kind == "part") {
            if (words.size() != 2) fault("a part has a name");
            give(parts_, words[1], character_.parts_.size());
            character_.parts_.emplace_back();
            inPart_ = true;
        } else if (kind == "frame") {
            frame(words);
        } else if (kind == "animation") {
            animation(words);
        } else if (kind == "end" && words.size() == 1) {
            return true;
        } else {
            fault("\"" + kind + "\" is no entry");
        }
        return false;
    }

    void frame(const QStringList& words) {
        if (words.size() < 6 || words[4] != ":") fault("a frame has a name, two numbers and parts");
        Character::Frame made{number(words[2], -512, 512), number(words[3], -512, 512), {}};
        for (const QString& part : words.mid(5)) made.parts.push_back(find(parts_, part, "part"));
        give(frames_, words[1], character_.frames_.size());
        character_.frames_.push_back(std::move(made));
    }

    void animation(const QStringList& words) {
        if (words.size() < 5 || words.size() % 2 == 0 || words[2] != ":")
            fault("an animation has a name, and frames with times");
        std::vector<Character::Step> steps;
        for (qsizetype i = 3; i < words.size(); i += 2)
            steps.push_back(
                {find(frames_, words[i], "frame"), std::chrono::milliseconds(number(words[i + 1], 20, 10000))});
        if (steps.size() > mostEntries || character_.animations_.size() >= mostEntries)
            fault("there are too many entries");
        if (!character_.animations_.emplace(words[1].toStdString(), std::move(steps)).second)
            fault("the name \"" + words[1] + "\" is given twice");
    }

    void finishPart() {
        if (!inPart_) return;
        inPart_ = false;
        const QByteArray& part = character_.parts_.back();
        if (part.isEmpty()) fault("the part before is empty");
        QXmlStreamReader xml("<svg>" + part + "</svg>");
        for (int depth = 0; !xml.atEnd();) {
            const auto token = xml.readNext();
            if (token == QXmlStreamReader::EndElement) --depth;
            if (token != QXmlStreamReader::StartElement) continue;
            const bool known = std::any_of(shapes.begin(), shapes.end(),
                                           [&](auto shape) { return xml.name() == QLatin1String(shape); });
            if (++depth > 1 && !known) fault("\"" + xml.name().toString() + "\" is no shape");
        }
        if (xml.hasError()) fault("the part before is broken: " + xml.errorString());
    }

    int number(const QString& word, int least, int most) const {
        bool read = false;
        const int value = word.toInt(&read);
        if (!read || value < least || value > most)
            fault(QString("\"%1\" is no number from %2 to %3").arg(word).arg(least).arg(most));
        return value;
    }

    using Names = std::map<QString, int>;
    void give(Names& names, const QString& word, std::size_t index) const {
        if (index >= mostEntries) fault("there are too many entries");
        if (!names.emplace(word, static_cast<int>(index)).second) fault("the name \"" + word + "\" is given twice");
    }
    int find(const Names& names, const QString& word, const char* kind) const {
        const auto found = names.find(word);
        if (found == names.end()) fault(QString("there is no %1 \"%2\"").arg(kind, word));
        return found->second;
    }

    [[noreturn]] void fault(const QString& text) const {
        throw RuntimeFailure(Character::damaged, "The assistant's character is damaged: " + name_ + ", line " +
                                                     std::to_string(line_) + ": " + text.toStdString());
    }

    std::string name_;
    int line_ = 0;
    bool begun_ = false;
    bool inPart_ = false;
    Character character_;
    Names parts_;
    Names frames_;
};

Character Character::load(const std::string& file) {
    return CharacterReader(file).read();
}

QByteArray Character::drawing(int frame) const {
    const Frame& drawn = frames_.at(static_cast<std::size_t>(frame));
    QByteArray svg = QString(
                         "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %2\">"
                         "<g transform=\"translate(%3 %4)\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n")
                         .arg(size_.width())
                         .arg(size_.height())
                         .arg(drawn.dx)
                         .arg(drawn.dy)
                         .toUtf8();
    for (const int part : drawn.parts) svg += parts_[static_cast<std::size_t>(part)];
    return svg + "</g></svg>\n";
}

const std::vector<Character::Step>* Character::animation(std::string_view name) const {
    const auto found = animations_.find(name);
    return found == animations_.end() ? nullptr : &found->second;
}

}  // namespace torvane
