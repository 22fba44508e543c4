// Any bytes as the display's font, through the toolkit: added, written with, and taken away again. What was
// added can be removed, what was refused cannot, and neither stays behind.
#include <QApplication>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include "feed.h"
#include "fence.h"
#include "platform/display.h"

namespace {

// As the panel does, on a screen of this density.
void Write_With_It(int density) {
    QImage image(144 * density, 24 * density, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    QPainter painter(&image);
    QFont font(QStringLiteral("JX8P"));
    font.setPixelSize(20);
    painter.setFont(font);
    painter.drawText(2, 20, QString::fromUtf16(u"NEW 8P\uE000"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static char name[] = "font_fuzz";
    static char* arguments[] = {name, nullptr};
    static int number = 1;
    static const QApplication* const application = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QApplication(number, arguments);
    }();
    (void)application;
    const std::string path = Fenced_Folder() + "/JX8P.FNT";
    Fenced_Write(path, {reinterpret_cast<const char*>(data), size});
    const bool added = Font_File_Add(path);
    if (added) Write_With_It(size % 2 == 0 ? 1 : 2);
    Check((Font_File_Remove(path) == 0) == added);
    Check(Font_File_Remove(path) != 0);
    return 0;
}
