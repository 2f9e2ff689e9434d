#include "reports/report_html.h"

#include "values/numbers.h"

namespace torvane {

namespace {

// Twips as points, 20 to the point.
std::string points(int twips) {
    return generalText(twips / 20.0) + "pt";
}

std::string escaped(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        switch (c) {
            case '&':
                safe += "&amp;";
                break;
            case '<':
                safe += "&lt;";
                break;
            case '>':
                safe += "&gt;";
                break;
            default:
                safe += c;
        }
    }
    return safe;
}

}  // namespace

std::string htmlHead(std::string_view title) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + escaped(title) +
           "</title>\n<style>\n"
           "body { margin: 0; }\n"
           ".page { position: relative; width: " +
           points(pageWidth) + "; height: " + points(pageHeight) +
           "; page-break-after: always; font-family: Arial, 'Liberation Sans', sans-serif; font-size: " +
           generalText(textPoints) +
           "pt; }\n"
           ".page div { position: absolute; overflow: hidden; white-space: nowrap; line-height: 1.15; }\n"
           ".bold { font-weight: bold; }\n"
           ".title { font-weight: bold; font-size: " +
           generalText(titlePoints) +
           "pt; }\n"
           ".right { text-align: right; }\n"
           ".line { border-top: 0.75pt solid black; }\n"
           "</style>\n</head>\n<body>\n";
}

std::string htmlPage(const std::vector<Placed>& page) {
    std::string text = "<section class=\"page\">\n";
    for (const Placed& placed : page) {
        if (placed.kind != ReportControl::Line && placed.text.empty()) continue;
        std::string classes = placed.kind == ReportControl::Line ? "line"
                              : placed.face == Face::Title       ? "title"
                              : placed.face == Face::Bold        ? "bold"
                                                                 : "plain";
        if (placed.align == Align::Right) classes += " right";
        text += "<div class=\"" + classes + "\" style=\"left:" + points(placed.left) + ";top:" + points(placed.top) +
                ";width:" + points(placed.width) + ";height:" + points(placed.height) + "\">" + escaped(placed.text) +
                "</div>\n";
    }
    return text + "</section>\n";
}

std::string htmlEnd() {
    return "</body>\n</html>\n";
}

}  // namespace torvane
