#pragma once

#include <QWidget>
#include <array>
#include <string>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;

namespace torvane {

struct Category;

// The window "Conversions": two boxes with the units of a category under each. What is typed on one side stays, and the
// other side follows at once, also when a unit is chosen on either side. A word over a box says why nothing follows.
class ConversionWindow : public QWidget {
    Q_OBJECT
public:
    ConversionWindow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Side {
        QLineEdit* box = nullptr;
        QListWidget* units = nullptr;
        QLabel* word = nullptr;
        std::string lastText;  // the last one that was not empty
    };
    void addSide(QGridLayout& grid, int index, const QString& name, const QString& label);
    void startCategory(int index);
    void follow();
    static void tell(const Side& side, const QString& word);
    void copy() const;

    std::array<Side, 2> sides_;
    QComboBox* fractions_ = nullptr;
    const Category* category_ = nullptr;
    std::size_t typed_ = 0;  // the side that stays
};

}  // namespace torvane
