#pragma once
// The canvas of drawable picture boxes: a persistent image in device pixels (so text is
// crisp on a high-density screen) that the box's widget shows. Twips map to pixels by 15.
#include <QFont>
#include <QImage>
#include <QPainter>

#include "platform/canvas.h"

namespace qh {

class QtCanvas : public Canvas {
public:
    // devicePixelRatio: device pixels per pixel of the screen the canvas is shown on.
    explicit QtCanvas(double devicePixelRatio = 1.0);

    void resize(int widthTwips, int heightTwips) override;
    int scaleWidth() const override { return widthTwips_; }
    int scaleHeight() const override { return heightTwips_; }
    void clear(Color background) override;
    void line(int x1, int y1, int x2, int y2, Color color) override;
    void filledBox(int x1, int y1, int x2, int y2, Color color) override;
    void setFont(const CanvasFont& font) override;
    const CanvasFont& font() const override { return font_; }
    void setForeColor(Color color) override { foreColor_ = color; }
    void printText(int x, int y, const std::string& text) override;
    int textWidth(const std::string& text) const override;
    int textHeight() const override;
    void paintPicture(const std::string& picture, int x, int y) override;

    // What has been drawn since the last clear, on a transparent ground; its
    // devicePixelRatio is set, so a painter draws it at its size in pixels. A box shows,
    // from the bottom up: the colour of the last clear, its picture, then this image. So a
    // picture box with a picture shows the picture under its drawing after a clear, as
    // the planner's column headers expect.
    const QImage& image() const { return image_; }
    Color background() const { return background_; }
    // The three layers as one image (the picture may be empty).
    QImage flattened(const std::string& picture = {}) const;
    // Paints the layers into a painter at the top left (pixels).
    void paintLayers(QPainter& painter, const std::string& picture) const;
    // Rises with every change of the image, so a widget repaints only when it changed.
    unsigned long long generation() const { return generation_; }
    // Re-renders at another density, keeping the size in twips; what was drawn is scaled.
    void setDevicePixelRatio(double ratio);

private:
    void remake(const QImage* keep);
    int widthTwips_ = 0, heightTwips_ = 0;
    double ratio_ = 1.0;
    QImage image_;
    CanvasFont font_;
    QFont qfont_;
    Color foreColor_ = kBlack;
    Color background_ = kWhite;
    unsigned long long generation_ = 0;
};

class QtCanvasFactory : public CanvasFactory {
public:
    std::shared_ptr<Canvas> create() override;
};

// The font a window or canvas asks for, as a Qt font (substitutes apply).
QFont qtFont(const std::string& name, double pointSize, bool bold, bool italic, bool underline,
             bool strikethrough = false);
// &HBBGGRR as a Qt colour; the bits above the 24 colour bits are ignored.
QColor qtColor(Color color);

}  // namespace qh
