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
    for (const char c : text) safe += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    return safe;
}

// The width of a number or a date in Arial, or in the like of it, in twips.
double widthOf(std::string_view text) {
    double ems = 0;
    for (const char c : text) {
        const auto isOneOf = [c](std::string_view signs) { return signs.find(c) != std::string_view::npos; };
        ems += isOneOf("0123456789") ? 0.556 : isOneOf(".,/ ") ? 0.278 : isOneOf("-") ? 0.333 : 0.667;
    }
    return ems * textPoints * 20;
}

// A text, or a number made narrower for its box.
std::string content(const Placed& placed) {
    std::string text = escaped(placed.text);
    const double width = placed.squeeze ? widthOf(placed.text) : 0;
    if (width <= placed.room()) return text;
    const int left = placed.field.align == Align::Right ? placed.field.width - placed.room() : 0;
    return "<span style=\"margin-left:" + points(left) + ";transform:scaleX(" +
           generalText(static_cast<float>(placed.room() / width)) + ")\">" + text + "</span>";
}

}  // namespace

std::string htmlHead(std::string_view title) {
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + escaped(title) +
           "</title>\n<style>\n"
           "@page { size: " +
           points(pageWidth) + " " + points(pageHeight) +
           "; margin: 0; }\n"
           "body { margin: 0; }\n"
           ".page { position: relative; overflow: hidden; width: " +
           points(pageWidth) + "; height: " + points(pageHeight) +
           "; font-family: Arial, 'Liberation Sans', sans-serif; font-size: " + generalText(textPoints) +
           "pt; }\n"
           ".page + .page { page-break-before: always; }\n"
           ".page div { position: absolute; overflow: hidden; white-space: pre; line-height: 1.15; }\n"
           ".page .whole { overflow: visible; }\n"
           ".whole span { display: inline-block; transform-origin: left; }\n"
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
        if (placed.field.kind != ReportControl::Line && placed.text.empty()) continue;
        std::string classes = placed.field.kind == ReportControl::Line ? "line"
                              : placed.field.face == Face::Title       ? "title"
                              : placed.field.face == Face::Bold        ? "bold"
                                                                       : "plain";
        if (placed.field.align == Align::Right) classes += " right";
        if (placed.squeeze) classes += " whole";
        text += "<div class=\"" + classes + "\" style=\"left:" + points(placed.field.left) +
                ";top:" + points(placed.field.top) + ";width:" + points(placed.field.width) +
                ";height:" + points(placed.field.height) + "\">" + content(placed) + "</div>\n";
    }
    return text + "</section>\n";
}

std::string htmlEnd() {
    return "</body>\n</html>\n";
}

}  // namespace torvane
