#include "platform/qt/qt_canvas.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <cstdlib>

#include "platform/qt/pictures.h"
#include "qt_test_support.h"

namespace qh {
namespace {

// Pixels of `area` that are dark (lightness below `light`), or with `opaque`, not transparent.
int pixelsIn(const QImage& image, QRect area, int light = 128, bool opaque = false) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += opaque ? image.pixelColor(x, y).alpha() > 0 : image.pixelColor(x, y).lightness() < light;
    return count;
}
int opaquePixels(const QImage& image, QRect area) { return pixelsIn(image, area, 0, true); }

// Each test runs at the standard density and at double.
class QtCanvasTest : public testing::TestWithParam<double> {
protected:
    QtCanvasTest() { testApplication(); }
    const double r = GetParam();
    // The colour of the screen pixel (px, py).
    QColor pixelAt(const QtCanvas& canvas, int px, int py) {
        return canvas.flattened().pixelColor(int(px * r), int(py * r));
    }
    QRect pixels(int x, int y, int w, int h) const { return QRect(int(x * r), int(y * r), int(w * r), int(h * r)); }
};

TEST_P(QtCanvasTest, BoxesLinesAndPicturesLandOnThePixelsOfTheirTwips) {
    QtCanvas canvas(r);
    canvas.resize(3000, 1500);  // 200 x 100 pixels
    EXPECT_EQ(canvas.image().width(), int(200 * r));
    canvas.clear(kWhite);
    canvas.filledBox(150, 300, 450, 600, rgb(255, 0, 0));  // pixels 10..30 by 20..40, corners in
    canvas.line(0, 1050, 2985, 1050, rgb(0, 0, 255));      // row 70, both ends in
    const struct {
        int x, y;
        QColor color;
    } probes[] = {{10, 20, Qt::red}, {30, 40, Qt::red},   {31, 40, Qt::white}, {9, 20, Qt::white},
                  {0, 70, Qt::blue}, {199, 70, Qt::blue}, {100, 69, Qt::white}, {100, 71, Qt::white}};
    for (const auto& p : probes) EXPECT_EQ(pixelAt(canvas, p.x, p.y), p.color) << p.x << "," << p.y;

    canvas.paintPicture("Checked", 1500, 150);  // 13 x 13 pixels from (100, 10), at its own size
    const QImage shown = canvas.flattened();
    EXPECT_GT(pixelsIn(shown, pixels(100, 10, 13, 13)), 5);
    EXPECT_EQ(pixelsIn(shown, pixels(114, 0, 20, 60)), 0);
    const auto before = canvas.generation();
    canvas.paintPicture("NoSuchPicture", 0, 0);  // nothing, and no failure
    EXPECT_EQ(canvas.generation(), before);
    canvas.clear(rgb(0, 255, 0));
    EXPECT_GT(canvas.generation(), before);
    EXPECT_EQ(pixelAt(canvas, 20, 30), QColor(0, 255, 0));
}

TEST_P(QtCanvasTest, TextStandsAtItsTopLeftAndMeasuresAsDrawn) {
    QtCanvas canvas(r);
    canvas.resize(4500, 600);  // 300 x 40 pixels
    canvas.clear(kWhite);
    canvas.setFont(CanvasFont{"Arial", 12, true});
    canvas.setForeColor(kBlack);
    const std::string text = "Essay draft";
    const int width = canvas.textWidth(text);
    canvas.printText(1500, 150, text);  // from pixel (100, 10)

    const QImage image = canvas.flattened();
    const int widthPixels = width / 15;
    EXPECT_GT(widthPixels, 40);
    EXPECT_LT(widthPixels, 150);
    // Ink lies right of and below the top left, within the measured width...
    EXPECT_GT(pixelsIn(image, pixels(100, 10, widthPixels, 20)), 30);
    // ...and nowhere left of the start or beyond the measured end.
    EXPECT_EQ(pixelsIn(image, QRect(0, 0, int(99 * r), image.height())), 0);
    EXPECT_EQ(pixelsIn(image, QRect(int((102 + widthPixels) * r), 0, int(20 * r), image.height())), 0);
    canvas.setFont(CanvasFont{"Arial", 12, false});
    EXPECT_LT(canvas.textWidth(text), width);  // bold is wider
}

INSTANTIATE_TEST_SUITE_P(Densities, QtCanvasTest, testing::Values(1.0, 2.0),
                         [](const testing::TestParamInfo<double>& info) {
                             return info.param == 1.0 ? std::string("Standard") : std::string("Double");
                         });

TEST(QtCanvas, ResizeKeepsWhatWasDrawnAndAClearShowsTheBoxPictureAgain) {
    testApplication();
    QtCanvas canvas;
    canvas.resize(300, 300);
    canvas.clear(rgb(255, 255, 0));
    canvas.filledBox(0, 0, 285, 285, rgb(0, 0, 255));
    canvas.resize(1500, 330);  // a column header, 100 x 22 pixels
    EXPECT_EQ(canvas.scaleWidth(), 1500);
    // The new part shows the colour of the last clear, as the rest of the box does.
    EXPECT_EQ(canvas.flattened().pixelColor(5, 5), QColor(0, 0, 255));
    EXPECT_EQ(canvas.flattened().pixelColor(30, 15), QColor(255, 255, 0));

    canvas.clear(kWhite);  // what was drawn goes; the picture shows again
    canvas.setForeColor(kBlack);
    canvas.printText(45, 45, "Due");
    const QImage bare = canvas.flattened();
    const QImage header = canvas.flattened("GridTitle");
    // The header's face lies below the text: not white at the bottom, where no text is.
    EXPECT_EQ(bare.pixelColor(80, 15), QColor(Qt::white));
    EXPECT_LT(header.pixelColor(80, 15).lightness(), 250);
    // The text stands on top of it.
    EXPECT_GT(pixelsIn(header, QRect(3, 3, 25, 16)), 10);
}

QImage drawnInto(const char* name, QSize box, QColor ground = Qt::transparent) {
    QImage image(box, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    drawPicture(painter, name, QRectF(image.rect()));
    return image;
}

TEST(Pictures, EveryPictureTheWindowsNameExistsAndDraws) {
    testApplication();
    for (const char* name :
         {"HomeworkDown", "HomeworkUp", "SessionsDown", "SessionsUp", "TasksDown", "TasksUp", "EventsDown",
          "EventsUp", "RemindersDown", "RemindersUp", "CalMonthLeftDown", "CalMonthLeftUp", "CalMonthRightDown",
          "CalMonthRightUp", "CalDayLeftDown", "CalDayLeftUp", "CalDayRightDown", "CalDayRightUp", "TodayDown",
          "TodayUp", "TomorrowDown", "TomorrowUp", "Lock", "Help", "Web", "GridTitle", "GridTitleUp",
          "GridTitleDown", "Checked", "Unchecked", "Splash", "RemindersPanel"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(hasPicture(name));
        const QSize size = pictureSize(name);
        ASSERT_FALSE(size.isEmpty());
        EXPECT_GT(opaquePixels(drawnInto(name, size), QRect(QPoint(0, 0), size)), size.width() * size.height() / 10);
    }
    EXPECT_FALSE(hasPicture("NoSuchPicture"));
}

TEST(Pictures, APictureStandsAtItsOwnSizeUnlessMadeToFillItsBox) {
    testApplication();
    // The padlock in a larger box: at its own size, from the top left.
    const QSize lock = pictureSize("Lock");
    const QImage padlock = drawnInto("Lock", QSize(100, 100));
    EXPECT_GT(opaquePixels(padlock, QRect(QPoint(0, 0), lock)), 0);
    EXPECT_EQ(opaquePixels(padlock, padlock.rect()), opaquePixels(padlock, QRect(QPoint(0, 0), lock)));
    // A smaller box shrinks it, keeping its shape.
    EXPECT_EQ(drawnInto("Lock", QSize(8, 100)).pixelColor(4, lock.height() - 2).alpha(), 0);
    // A button face fills the width it is given.
    const QImage face = drawnInto("TodayUp", QSize(200, pictureSize("TodayUp").height()));
    EXPECT_GT(face.pixelColor(190, 8).alpha(), 0);
    EXPECT_GT(face.pixelColor(100, 8).alpha(), 0);

    // A wide column header keeps its sort mark as it is at the right end, once.
    const QSize own = pictureSize("GridTitleUp");
    const QImage narrow = drawnInto("GridTitleUp", own, Qt::white);
    const QImage wide = drawnInto("GridTitleUp", QSize(own.width() * 4, own.height()), Qt::white);
    const int offset = wide.width() - narrow.width();
    for (int y = 0; y < own.height(); ++y)
        for (int x = own.width() - own.height(); x < own.width(); ++x)
            ASSERT_LE(std::abs(narrow.pixelColor(x, y).lightness() - wide.pixelColor(x + offset, y).lightness()), 3)
                << x << "," << y;
    EXPECT_EQ(pixelsIn(wide, QRect(own.height(), 0, wide.width() - 2 * own.height(), own.height()), 150), 0);
}

}  // namespace
}  // namespace qh
