#include "SampleReport.h"

namespace platform::testing {

void AddSampleStyles(PrintSurface& surface) {
    const PrintStyle plain = surface.Style();
    PrintStyles& styles = surface.Styles();
    styles.Add("Default", plain);

    PrintStyle title = plain;
    title.fontName = "Tahoma";
    title.fontSize = 24;
    title.fontBold = true;
    title.textColor = 0x800000;
    title.heading = HeadingLevel::First;
    styles.Add("Title", title);

    PrintStyle table = plain;
    table.fontSize = 8;
    table.spaceBefore = 20;
    table.spaceAfter = 20;
    styles.Add("Table", table);

    PrintStyle group = table;
    group.fontBold = true;
    group.textColor = 0x800000;
    group.heading = HeadingLevel::Third;
    styles.Add("Group", group);

    PrintStyle line = plain;
    line.fontSize = 9;
    line.fontBold = true;
    line.textColor = 0x400040;
    line.penColor = 0x400040;
    styles.Add("SepLine", line);
}

namespace {

void DrawTitle(PrintSurface& surface) {
    const Twips top = surface.CurrentY();
    surface.Style().brushStyle = BrushStyle::Solid;
    surface.Style().brushColor = 0xE0E0E0;
    surface.Style().penStyle = PenStyle::None;
    surface.DrawRectangle(surface.MarginLeft(), top, surface.MarginLeft() + surface.PrintWidth(),
                          top + 800);
    surface.MoveTo(surface.MarginLeft() + 100, top + 100);
    surface.ApplyStyle("Title");
    surface.Text("Rent Roll");
    surface.ApplyStyle("Default");
    surface.MoveTo(0, top + 900);
}

void DrawRentTable(PrintSurface& surface) {
    surface.ApplyStyle("Table");
    surface.StartTable();
    std::vector<std::vector<std::string>> rows = {
        {"1 Elm | A; rear", "Ann \"Bee\" <Lee> & Co", "(12.00)", "Yes"},
        {"2 Oak", "A tenant whose name is so long that it takes more than one line of its column",
         "1,234.50", "No"},
        {"3 Fir", "", ".50", "Yes"}};
    surface.AddTableArray("<2000|<|>1600|^900", {"Unit", "Tenant", "Balance", "Paid"},
                          std::make_unique<HeldRows>(std::move(rows)));
    PrintTable& table = surface.Table();
    table.border = TableBorder::BelowHeader;
    table.header.bold = true;
    table.header.background = 0xC0C0C0;
    table.header.height = 300;
    table.header.vertical = VerticalAlign::Middle;
    table.columns[2].alignCurrency = true;
    table.columns[0].bold = true;
    surface.EndTable();
}

void DrawLetters(PrintSurface& surface) {
    surface.ApplyStyle("Default");
    surface.Text(
        "Latin \u00C5ngstr\u00F6m \u0141\u00F3d\u017A, Greek \u0391\u03B8\u03AE\u03BD\u03B1, "
        "Cyrillic \u041C\u043E\u0441\u043A\u0432\u0430, \u20AC 5, \u201Cquoted\u201D");
    surface.Text(
        "Hebrew \u05E9\u05DC\u05D5\u05DD 123, Arabic "
        "\u0645\u0631\u062D\u0628\u0627 \u0639\u0627\u0644\u0645, e\u0301 combined");
    surface.Text(
        "Chinese \u5F20\u4F1F, Japanese \u5C71\u7530\u592A\u90CE \u3053\u3093, "
        "Korean \uAE40\uCCA0\uC218, face \U0001F600, old \U00020000");
}

void DrawShapes(PrintSurface& surface) {
    surface.ApplyStyle("Default");
    PrintStyle& style = surface.Style();
    const Twips y = surface.CurrentY() + 200;
    style.penColor = 255;
    style.penWidth = 40;
    style.brushStyle = BrushStyle::Solid;
    style.brushColor = 0xC0FFC0;
    surface.DrawRectangle(surface.MarginLeft(), y, surface.MarginLeft() + 2000, y + 1000);
    surface.DrawLine(surface.MarginLeft() + 2500, y, surface.MarginLeft() + 4500, y + 1000);
    style.fontUnderline = true;
    surface.MoveTo(surface.MarginLeft() + 5000, y);
    surface.Text("Located, underlined and wrapped where the right margin is\nsecond line");
    style.fontUnderline = false;
    style.textAngle = 2700;
    surface.MoveTo(surface.MarginLeft() + 400, y + 100);
    surface.TextAt("turned");
    style.textAngle = 0;
    surface.MoveTo(0, y + 1300);
}

} // namespace

void DrawSample(PrintSurface& surface) {
    surface.SetDocName("Rent \"Roll\"");
    surface.SetInformation("Elm & Oak LLC", "Rents");
    surface.SetFrame(
        {.header = {"Elm & Oak LLC", "", "02/29/2024"}, .footer = {"Rent Roll", "", "Page %d"}});
    surface.StartDoc();
    DrawTitle(surface);
    surface.Text(
        "Every paragraph wraps at the right margin of the page, however long it is; a word "
        "like Donaudampfschifffahrtselektrizit\u00E4tenhauptbetriebswerkbauunterbeamten"
        "gesellschaftsvorsitzender that is wider than a line is broken within itself.");
    surface.ApplyStyle("SepLine");
    surface.SepLine("Balances");
    surface.ApplyStyle("Group");
    surface.Text("Selected Building = Elm");
    DrawRentTable(surface);
    surface.ApplyStyle("SepLine");
    surface.SepLine("-");
    DrawLetters(surface);
    DrawShapes(surface);
    surface.ApplyStyle("Table");
    surface.StartTable();
    surface.AddTable("<2160|>2160", "", "Depreciation Basis|100,000.00;Method|Straight Line;");
    surface.Table().border = TableBorder::All;
    surface.EndTable();
    surface.EndDoc();
}

} // namespace platform::testing
