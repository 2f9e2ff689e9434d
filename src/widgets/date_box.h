#pragma once

#include <QDateEdit>

#include "values/dates.h"

namespace torvane {

// The date picker: typed as a text, picked from a calendar (Alt+Down or F4 opens it), or stepped by the arrow keys,
// which move the part that the caret stands in. A typed text is read when it is done, in the order of the machine's
// short date; one that is no date, or none from 1601 to 9999, leaves the date as it was. The wheel changes it only
// while it has the focus.
class DateBox : public QDateEdit {
    Q_OBJECT
public:
    explicit DateBox(QWidget* parent = nullptr);
    // How the machine writes a date; called before a date is set.
    void setDateStyle(ShortDate style);
    // What has been typed so far counts.
    Date Value();
    void setValue(const Date& date);
    void stepBy(int steps) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void wheelEvent(QWheelEvent* event) override;
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    QValidator::State validate(QString& text, int& caret) const override;
    void fixup(QString&) const override {}
    QDateTime dateTimeFromText(const QString& text) const override;
    QString textFromDateTime(const QDateTime& date) const override;

private:
    void openCalendar();
    QDate read(const QString& text) const;
    ShortDate style_;
};

}  // namespace torvane
