#pragma once

#include <span>
#include <string_view>

namespace torvane {

// Report layouts as data. Coordinates and sizes are twips (1440 to the inch) within a band; a page is Letter with
// margins of an inch on all sides.

inline constexpr int pageWidth = 12240;
inline constexpr int pageHeight = 15840;
inline constexpr int pageMargin = 1440;

inline constexpr double textPoints = 8.25;
inline constexpr double titlePoints = 15.75;

enum class ReportControl { Label, Text, Line, Sum };  // Sum: of a column over all rows of the report
enum class Align { Left, Right };
// How a field becomes text: by the general conversion, or with two decimals.
enum class Format { General, TwoDecimals };
enum class Face { Plain, Bold, Title };

struct ReportField {
    std::string_view name;
    ReportControl kind;
    std::string_view text;  // the caption of a label, or the column of a text or sum
    int left;
    int top;
    int width;
    int height;
    Align align = Align::Left;
    Face face = Face::Plain;
    Format format = Format::General;
};

struct Band {
    int height = 0;
    std::span<const ReportField> fields;
};

// The bands in the order of printing: report header once, page header on each page, then for each group its header, a
// detail per row and its footer, and the report footer once. A report without groups has one group of all rows, whose
// bands are empty.
struct ReportLayout {
    std::string_view name;
    std::string_view caption;  // of the window
    Band reportHeader;
    Band pageHeader;
    Band groupHeader;
    Band detail;
    Band groupFooter;
    Band reportFooter;
};

extern const ReportLayout estimatesLayout;  // DataReport1
extern const ReportLayout customersLayout;  // DataReport2
extern const ReportLayout proposalLayout;   // DataReport3, one estimate

}  // namespace torvane
