#include "calendar/calendar_binder.h"

namespace qh {
namespace {

constexpr const char* kDayHeaderLetters = "MTWTFSS";
constexpr Color kMonthBarBlue = 0x7F4F2F;

}  // namespace

Control& AddMonthCalendarControls(const MonthCalendarControls& ui, const std::string& container, int left, int top,
                                  int cellWidth, int cellHeight) {
    Form& form = *ui.form;
    const std::string& box = ui.picCalendar.key();
    Control& calendar = form.add(ControlKind::PictureBox, box, container, left, top, 2640, 2520);
    calendar.backColor = kWhite;
    calendar.border = true;
    calendar.accessibleName = "Calendar";
    Control& monthDown = form.add(ControlKind::PictureBox, ui.picCalMonthDown.key(), box, 0, 0, 180, 270);
    monthDown.picture = "CalMonthLeftUp";
    // Where an arrow's picture ends, its box shows the bar's blue: one bar, no notch.
    monthDown.backColor = kMonthBarBlue;
    monthDown.toolTip = "Previous month";
    Control& monthBar = form.add(ControlKind::PictureBox, ui.picCalMonthName.key(), box, 180, 0, 2130, 270);
    monthBar.backColor = kMonthBarBlue;
    monthBar.accessibleName = "Month";
    Control& month = form.addLabel(ui.LabelMonth.key(), ui.picCalMonthName.key(), 0, 0, 2130, 270, "");
    month.alignment = Alignment::Center;
    month.foreColor = kWhite;
    month.fontName = "Verdana";
    month.bold = true;
    Control& monthUp = form.add(ControlKind::PictureBox, ui.picCalMonthUp.key(), box, 2310, 0, 330, 270);
    monthUp.picture = "CalMonthRightUp";
    monthUp.backColor = kMonthBarBlue;
    monthUp.toolTip = "Next month";
    Control& dayBackground = form.addLabel(ui.LabelCalDayBG.key(), box, 0, 270, 2640, 255, "");
    dayBackground.opaque = true;
    dayBackground.backColor = 0xEEE6DD;
    for (int i = 0; i < 7; ++i) {
        Control& header = form.addLabel(ui.LabelCalDay.name(), box, 150 + 330 * i, 300, 300, 225,
                                        std::string(1, kDayHeaderLetters[i]), i);
        header.alignment = Alignment::Center;
        header.fontName = "Verdana";
        header.bold = true;
    }
    // Today's frame: a black tile a pixel larger than a cell all round, lying under it.
    Control& tile = form.addLabel(ui.LabelCalTileBorder.key(), box, 150, 2055, 330, 255, "");
    tile.alignment = Alignment::Center;
    tile.opaque = true;
    tile.backColor = kBlack;
    tile.visible = false;
    for (int i = 0; i < 42; ++i) {
        Control& cell = form.addLabel(ui.LabelCalDate.name(), box, 150 + 330 * (i % 7), 615 + 240 * (i / 7), cellWidth,
                                      cellHeight, std::to_string(i + 1), i);
        cell.opaque = true;
        cell.backColor = kWhite;
        cell.fontName = "Verdana";
        cell.fontSize = 8.25;
        cell.alignment = Alignment::Center;
        cell.tag = std::to_string(i);
    }
    form.sendToBack(ui.LabelCalTileBorder.key());
    Control& today = form.add(ControlKind::PictureBox, ui.picToday.key(), box, 330, 2145, 750, 240);
    today.picture = "TodayUp";
    today.accessibleName = "Go to today";
    form.addLabel(ui.LabelToday.key(), ui.picToday.key(), 0, 15, 750, 240, "Today").alignment = Alignment::Center;
    Control& tomorrow = form.add(ControlKind::PictureBox, ui.picTomorrow.key(), box, 1170, 2145, 1125, 240);
    tomorrow.picture = "TomorrowUp";
    tomorrow.accessibleName = "Go to tomorrow";
    form.addLabel(ui.LabelTomorrow.key(), ui.picTomorrow.key(), 0, 15, 1125, 240, "Tomorrow").alignment =
        Alignment::Center;
    return calendar;
}

void PaintMonthCells(const MonthCalendarControls& ui, const MonthCells& cells, const std::string& monthCaption) {
    ui.LabelMonth->caption = monthCaption;
    Control& frame = *ui.LabelCalTileBorder;
    frame.visible = false;
    for (int i = 0; i < 42; ++i) {
        Control& cell = ui.LabelCalDate[i];
        const std::size_t k = std::size_t(i);
        cell.foreColor = colorFromText(cells.CellForeColors[k]);
        cell.bold = cells.CellBold[k];
        cell.backColor = colorFromText(cells.CellBackColors[k]);
        cell.caption = cells.CellCaptions[k];
        if (cells.CellIsToday[k]) {
            frame.left = cell.left - 15;
            frame.top = cell.top - 15;
            frame.visible = true;
            ui.form->sendToBack(ui.LabelCalTileBorder.key());
        }
    }
}

void NameMonthCells(const MonthCalendarControls& ui, const MonthCells& cells, const std::array<bool, 42>& marked,
                    const std::function<std::string(Date)>& longDate, const std::string& markName) {
    for (int i = 0; i < 42; ++i) {
        const std::size_t k = std::size_t(i);
        std::string name = longDate(cells.CalendarDates[k]);
        if (cells.CalendarDates[k] == cells.CalendarDates[42]) name += ", today";
        if (cells.CellBold[k]) name += ", selected";
        if (marked[k] && !markName.empty()) name += ", " + markName;
        ui.LabelCalDate[i].accessibleName = name;
    }
}

void ApplyDayHeaders(const MonthCalendarControls& ui, const std::string& startDayOfWeek) {
    static const char* const order[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    int first = 0;  // index into order of the first header
    std::pair<int, int> offers{1, 6};
    if (startDayOfWeek == "Monday") {
        first = 1;
        offers = {5, 6};
    } else if (startDayOfWeek == "Saturday") {
        first = 6;
        offers = {1, 2};
    }
    for (int i = 0; i < 7; ++i) {
        Control& header = ui.LabelCalDay[i];
        const std::string day = order[(first + i) % 7];
        header.caption = day.substr(0, 1);
        header.tag = day;
        header.accessibleName = day;
        header.underline = i == offers.first || i == offers.second;
    }
}

void UpdateQuickDateButtons(const MonthCalendarControls& ui, Date selected, Date today,
                            std::optional<Color> tomorrowGreyOnToday) {
    Control& labelToday = *ui.LabelToday;
    Control& labelTomorrow = *ui.LabelTomorrow;
    labelToday.foreColor = labelTomorrow.foreColor = 0x000000;
    labelToday.bold = labelTomorrow.bold = false;
    ui.picToday->picture = "TodayUp";
    ui.picTomorrow->picture = "TomorrowUp";
    if (selected == today) {
        labelToday.foreColor = 0x0000C0;
        labelToday.bold = true;
        ui.picToday->picture = "TodayDown";
        if (tomorrowGreyOnToday) labelTomorrow.foreColor = *tomorrowGreyOnToday;
    } else if (selected == today + 1) {
        labelTomorrow.foreColor = 0x0000C0;
        labelTomorrow.bold = true;
        ui.picTomorrow->picture = "TomorrowDown";
    }
}

}  // namespace qh
