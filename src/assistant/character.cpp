#include "assistant/character.h"

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <utility>

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

constexpr int leastSide = 16, mostSide = 512;  // pixels
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
                if (part_.isEmpty()) fault("a shape outside a part");
                parts_[part_] += line.toUtf8() + '\n';
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
            if (words != QStringList{"torvane-character", "1"}) fault("this is no character file");
            begun_ = true;
        } else if (character_.size_.isEmpty() != (kind == "size")) {
            fault("the size stands once, and first");
        } else if (kind == "size") {
            if (words.size() != 3) fault("a size is two numbers");
            character_.size_ = QSize(number(words[1], leastSide, mostSide), number(words[2], leastSide, mostSide));
        } else if (kind == "part") {
            if (words.size() != 2) fault("a part has a name");
            part_ = words[1];
            give(parts_, part_, {});
        } else if (kind == "frame") {
            frame(words);
        } else if (kind == "animation") {
            animation(words);
        } else if (words == QStringList{"end"}) {
            return true;
        } else {
            fault("\"" + kind + "\" is no entry");
        }
        return false;
    }

    void frame(const QStringList& words) {
        if (words.size() < 6 || words[4] != ":") fault("a frame has a name, two numbers and parts");
        const QSize& size = character_.size_;
        QByteArray drawing = QString(
                                 "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %2\">"
                                 "<g transform=\"translate(%3 %4)\" stroke-linecap=\"round\" "
                                 "stroke-linejoin=\"round\">\n")
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(number(words[2], -mostSide, mostSide))
                                 .arg(number(words[3], -mostSide, mostSide))
                                 .toUtf8();
        for (const QString& part : words.mid(5)) {
            drawing += find(parts_, part, "part");
            if (drawing.size() > mostBytes) fault("the frame is too large");
        }
        give(frames_, words[1], drawing + "</g></svg>\n");
    }

    void animation(const QStringList& words) {
        if (words.size() < 5 || words.size() % 2 == 0 || words[2] != ":")
            fault("an animation has a name, and frames with times");
        std::vector<Character::Step> steps;
        for (qsizetype i = 3; i < words.size(); i += 2)
            steps.push_back(
                {find(frames_, words[i], "frame"), std::chrono::milliseconds(number(words[i + 1], 20, 10000))});
        give(character_.animations_, words[1], std::move(steps));
    }

    void finishPart() {
        if (part_.isEmpty()) return;
        const QByteArray& part = parts_.at(std::exchange(part_, {}));
        if (part.isEmpty()) fault("the part before is empty");
        QXmlStreamReader xml("<svg>" + part + "</svg>");
        xml.readNextStartElement();  // the one around them
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement) continue;
            const bool known =
                std::ranges::any_of(shapes, [&](auto shape) { return xml.name() == QLatin1String(shape); });
            if (!known) fault("\"" + xml.name().toString() + "\" is no shape");
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

    template <class Entry>
    void give(std::map<QString, Entry>& entries, const QString& name, std::type_identity_t<Entry> entry) const {
        if (entries.size() >= mostEntries) fault("there are too many entries");
        if (!entries.emplace(name, std::move(entry)).second) fault("the name \"" + name + "\" is given twice");
    }
    const QByteArray& find(const std::map<QString, QByteArray>& entries, const QString& name, const char* kind) const {
        const auto found = entries.find(name);
        if (found == entries.end()) fault(QString("there is no %1 \"%2\"").arg(kind, name));
        return found->second;
    }

    [[noreturn]] void fault(const QString& text) const {
        throw RuntimeFailure(Character::damaged, "The assistant's character is damaged: " + name_ + ", line " +
                                                     std::to_string(line_) + ": " + text.toStdString());
    }

    std::string name_;
    int line_ = 0;
    bool begun_ = false;
    Character character_;
    QString part_;  // the one whose shapes are being read; empty when there is none
    std::map<QString, QByteArray> parts_;
    std::map<QString, QByteArray> frames_;
};

Character Character::load(const std::string& file) {
    return CharacterReader(file).read();
}

const std::vector<Character::Step>* Character::animation(std::string_view name) const {
    const auto found = animations_.find(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    return found == animations_.end() ? nullptr : &found->second;
}

}  // namespace torvane
