#include "platform/qt/qt_canvas.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <cstdlib>

#include "platform/qt/pictures.h"
#include "qt_test_support.h"

namespace qh {
namespace {

// The colour of the screen pixel (px, py) in a canvas image of any density.
QColor pixelAt(const QtCanvas& canvas, int px, int py) {
    const QImage shown = canvas.flattened();
    const double ratio = shown.devicePixelRatio();
    return shown.pixelColor(int(px * ratio), int(py * ratio));
}

int darkPixels(const QImage& image, QRect area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y).lightness() < 128) ++count;
    return count;
}

class QtCanvasTest : public testing::TestWithParam<double> {
protected:
    QtCanvasTest() { testApplication(); }
};

TEST_P(QtCanvasTest, BoxesAndLinesLandOnThePixelsOfTheirTwips) {
    QtCanvas canvas(GetParam());
    canvas.resize(3000, 1500);  // 200 x 100 pixels
    EXPECT_EQ(canvas.image().width(), int(200 * GetParam()));
    canvas.clear(kWhite);
    canvas.filledBox(150, 300, 450, 600, rgb(255, 0, 0));  // pixels 10..30 by 20..40, corners in
    EXPECT_EQ(pixelAt(canvas, 10, 20), QColor(255, 0, 0));
    EXPECT_EQ(pixelAt(canvas, 30, 40), QColor(255, 0, 0));
    EXPECT_EQ(pixelAt(canvas, 31, 40), QColor(Qt::white));
    EXPECT_EQ(pixelAt(canvas, 9, 20), QColor(Qt::white));

    canvas.line(0, 1050, 2985, 1050, rgb(0, 0, 255));  // row 70, both ends in
    EXPECT_EQ(pixelAt(canvas, 0, 70), QColor(0, 0, 255));
    EXPECT_EQ(pixelAt(canvas, 199, 70), QColor(0, 0, 255));
    EXPECT_EQ(pixelAt(canvas, 100, 69), QColor(Qt::white));
    EXPECT_EQ(pixelAt(canvas, 100, 71), QColor(Qt::white));

    const auto before = canvas.generation();
    canvas.clear(rgb(0, 255, 0));
    EXPECT_GT(canvas.generation(), before);
    EXPECT_EQ(pixelAt(canvas, 20, 30), QColor(0, 255, 0));
}

TEST_P(QtCanvasTest, TextStandsAtItsTopLeftAndMeasuresAsDrawn) {
    QtCanvas canvas(GetParam());
    canvas.resize(4500, 600);  // 300 x 40 pixels
    canvas.clear(kWhite);
    canvas.setFont(CanvasFont{"Arial", 12, true});
    canvas.setForeColor(kBlack);
    const std::string text = "Essay draft";
    const int width = canvas.textWidth(text);
    canvas.printText(1500, 150, text);  // from pixel (100, 10)

    const double r = GetParam();
    const QImage image = canvas.flattened();
    const int widthPixels = width / 15;
    EXPECT_GT(widthPixels, 40);
    EXPECT_LT(widthPixels, 150);
    // Ink lies right of and below the top left, within the measured width...
    EXPECT_GT(darkPixels(image, QRect(int(100 * r), int(10 * r), int(widthPixels * r), int(20 * r))), 30);
    // ...and nowhere left of the start or beyond the measured end.
    EXPECT_EQ(darkPixels(image, QRect(0, 0, int(99 * r), image.height())), 0);
    EXPECT_EQ(darkPixels(image, QRect(int((102 + widthPixels) * r), 0, int(20 * r), image.height())), 0);
    // Bold is wider than regular.
    canvas.setFont(CanvasFont{"Arial", 12, false});
    EXPECT_LT(canvas.textWidth(text), width);
}

TEST_P(QtCanvasTest, PicturesArePaintedAtTheirOwnSize) {
    QtCanvas canvas(GetParam());
    canvas.resize(1500, 1500);
    canvas.clear(kWhite);
    canvas.paintPicture("Checked", 300, 300);  // 13 x 13 pixels from (20, 20)
    const double r = GetParam();
    const QImage shown = canvas.flattened();
    EXPECT_GT(darkPixels(shown, QRect(int(20 * r), int(20 * r), int(13 * r), int(13 * r))), 5);
    EXPECT_EQ(darkPixels(shown, QRect(int(34 * r), 0, int(20 * r), int(100 * r))), 0);
    EXPECT_EQ(pixelAt(canvas, 10, 10), QColor(Qt::white));
    const auto before = canvas.generation();
    canvas.paintPicture("NoSuchPicture", 0, 0);  // nothing, and no failure
    EXPECT_EQ(canvas.generation(), before);
}

INSTANTIATE_TEST_SUITE_P(Densities, QtCanvasTest, testing::Values(1.0, 2.0),
                         [](const testing::TestParamInfo<double>& info) {
                             return info.param == 1.0 ? std::string("Standard") : std::string("Double");
                         });

TEST(QtCanvas, ResizeKeepsWhatWasDrawn) {
    testApplication();
    QtCanvas canvas;
    canvas.resize(300, 300);
    canvas.clear(rgb(255, 255, 0));
    canvas.filledBox(0, 0, 285, 285, rgb(0, 0, 255));
    canvas.resize(600, 600);
    EXPECT_EQ(canvas.scaleWidth(), 600);
    const QImage shown = canvas.flattened();
    EXPECT_EQ(shown.pixelColor(5, 5), QColor(0, 0, 255));
    // The new part shows the colour of the last clear, as the rest of the box does.
    EXPECT_EQ(shown.pixelColor(30, 30), QColor(255, 255, 0));
}

TEST(QtCanvas, AClearShowsTheBoxPictureUnderWhatIsDrawnAfter) {
    testApplication();
    QtCanvas canvas;
    canvas.resize(1500, 330);  // a column header, 100 x 22 pixels
    canvas.filledBox(0, 0, 1485, 315, kBlack);
    canvas.clear(kWhite);  // what was drawn goes; the picture shows again
    canvas.setForeColor(kBlack);
    canvas.printText(45, 45, "Due");
    const QImage bare = canvas.flattened();
    const QImage header = canvas.flattened("GridTitle");
    // The header's face lies below the text: not white at the bottom, where no text is.
    EXPECT_EQ(bare.pixelColor(80, 15), QColor(Qt::white));
    EXPECT_NE(header.pixelColor(80, 15), QColor(Qt::white));
    EXPECT_LT(header.pixelColor(80, 15).lightness(), 250);
    // The text stands on top of it.
    EXPECT_GT(darkPixels(header, QRect(3, 3, 25, 16)), 10);
}

TEST(Pictures, EveryPictureTheWindowsNameExistsAndDraws) {
    testApplication();
    const char* const names[] = {
        "HomeworkDown",      "HomeworkUp",         "SessionsDown",     "SessionsUp",     "TasksDown",
        "TasksUp",           "EventsDown",         "EventsUp",         "RemindersDown",  "RemindersUp",
        "CalMonthLeftDown",  "CalMonthLeftUp",     "CalMonthRightDown", "CalMonthRightUp", "CalDayLeftDown",
        "CalDayLeftUp",      "CalDayRightDown",    "CalDayRightUp",    "TodayDown",      "TodayUp",
        "TomorrowDown",      "TomorrowUp",         "Lock",             "Help",           "Web",
        "GridTitle",         "GridTitleUp",        "GridTitleDown",    "Checked",        "Unchecked",
        "Splash",            "RemindersPanel"};
    for (const char* name : names) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(hasPicture(name));
        const QSize size = pictureSize(name);
        ASSERT_FALSE(size.isEmpty());
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawPicture(painter, name, QRectF(QPointF(0, 0), QSizeF(size)));
        painter.end();
        int opaque = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) opaque += image.pixelColor(x, y).alpha() > 0;
        EXPECT_GT(opaque, size.width() * size.height() / 10);
    }
    EXPECT_FALSE(hasPicture("NoSuchPicture"));
}

QImage drawnInto(const char* name, QSize box) {
    QImage image(box, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawPicture(painter, name, QRectF(image.rect()));
    return image;
}

TEST(Pictures, APictureStandsAtItsOwnSizeUnlessMadeToFillItsBox) {
    testApplication();
    // The padlock in a larger box: at its own size, from the top left.
    const QSize lock = pictureSize("Lock");
    const QImage padlock = drawnInto("Lock", QSize(100, 100));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            if (x >= lock.width() || y >= lock.height()) {
                ASSERT_EQ(padlock.pixelColor(x, y).alpha(), 0) << x << "," << y;
            }
    // A smaller box shrinks it, keeping its shape.
    const QImage small = drawnInto("Lock", QSize(8, 100));
    EXPECT_EQ(small.pixelColor(4, lock.height() - 2).alpha(), 0);
    // A button face fills the width it is given.
    const QImage face = drawnInto("TodayUp", QSize(200, pictureSize("TodayUp").height()));
    EXPECT_GT(face.pixelColor(190, 8).alpha(), 0);
    EXPECT_GT(face.pixelColor(100, 8).alpha(), 0);
}

TEST(Pictures, AWideColumnHeaderKeepsItsSortMarkAtTheRightEnd) {
    testApplication();
    // The mark is drawn as it is at the right end whatever the header's width.
    const QSize own = pictureSize("GridTitleUp");
    QImage narrow(own, QImage::Format_ARGB32_Premultiplied), wide(QSize(own.width() * 4, own.height()), narrow.format());
    for (QImage* image : {&narrow, &wide}) {
        image->fill(Qt::white);
        QPainter painter(image);
        drawPicture(painter, "GridTitleUp", QRectF(image->rect()));
    }
    const int offset = wide.width() - narrow.width();
    for (int y = 0; y < own.height(); ++y)
        for (int x = own.width() - own.height(); x < own.width(); ++x)
            ASSERT_LE(std::abs(narrow.pixelColor(x, y).lightness() - wide.pixelColor(x + offset, y).lightness()), 3)
                << x << "," << y;
    // The stretched middle is the plain face: the mark appears once, at the end.
    int marks = 0;
    for (int y = 0; y < own.height(); ++y)
        for (int x = own.height(); x < wide.width() - own.height(); ++x) marks += wide.pixelColor(x, y).lightness() < 150;
    EXPECT_EQ(marks, 0);
}

}  // namespace
}  // namespace qh
