#include "estimates/pricing.h"

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

double panelTotal(const LinePanel& panel) {
    return finite(lenientNumber(panel.material) * lenientNumber(panel.quantity) + lenientNumber(panel.labor) +
                  lenientNumber(panel.extension) + lenientNumber(panel.others));
}

LineAmounts lineAmounts(const LinePanel& panel) {
    LineAmounts amounts;
    amounts.quantity = lenientNumber(panel.quantity);
    amounts.material = finite(amounts.quantity * lenientNumber(panel.material));
    amounts.labor = lenientNumber(panel.labor);
    amounts.extension = lenientNumber(panel.extension);
    amounts.others = lenientNumber(panel.others);
    amounts.total = finite(amounts.material + amounts.extension + amounts.labor + amounts.others);
    return amounts;
}

std::string unitPriceText(std::string_view quantity, std::string_view extendedMaterial) {
    const double units = lenientNumber(quantity);
    return units > 0 ? generalText(finite(strictDouble(extendedMaterial) / units)) : "0";
}

float sumOfTotals(const std::vector<std::string>& lineTotals) {
    float sum = 0;
    for (const std::string& total : lineTotals) sum = narrowToSingle(sum + lenientNumber(total));
    return sum;
}

TotalTexts totalTexts(std::string_view amount, std::string_view taxPercent, std::string_view overheadPercent) {
    const double sum = lenientNumber(amount);
    TotalTexts texts;
    texts.tax = generalText(finite(sum * lenientNumber(taxPercent) / 100));
    texts.overhead = generalText(finite(sum * lenientNumber(overheadPercent) / 100));
    // Read back from what the boxes show, so that the three of them always add up.
    texts.finalTotal = generalText(finite(sum + lenientNumber(texts.tax) + lenientNumber(texts.overhead)));
    return texts;
}

std::string priceEntry(const RowArray& items, int row) {
    // A price that is Null is an empty part; the others keep their places.
    std::string entry = textOrEmpty(items(2, row));
    for (const int column : {3, 4, 5, 6}) entry.append(1, '#').append(textOrEmpty(items(column, row)));
    return entry;
}

std::string pricePart(std::string_view entry, PricePart part) {
    for (int skip = static_cast<int>(part); skip > 0; --skip) {
        const auto mark = entry.find('#');
        if (mark == std::string_view::npos) fail(Failure::Subscript, entry);
        entry.remove_prefix(mark + 1);
    }
    return std::string{entry.substr(0, entry.find('#'))};
}

}  // namespace torvane
