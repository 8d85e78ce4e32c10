#include <QImage>
#include <QMenuBar>
#include <QStyleFactory>
#include <QTemporaryFile>
#include <memory>

#include "Fixture.h"
#include "forms/Picture.h"

namespace sorvane::forms {
namespace {

QImage Painted(const QIcon& icon, int side) { return icon.pixmap(QSize(side, side), 1.0).toImage(); }

TEST(Icons, TheMenuBarsArrowIsMadeLateAndLooksAsEver) {
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
    QWidget window;
    QMenuBar bar(&window);
    const QIcon ours = bar.style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, &bar);
    const QIcon theirs = plain->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, &bar);
    const QImage picture = Painted(ours, 16);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture, Painted(theirs, 16));
    QImage blank(picture.size(), picture.format());
    blank.fill(Qt::transparent);
    EXPECT_NE(picture, blank);
}

TEST(Icons, AWindowsIconIsDrawnInTheSizesThatWindowManagersAskFor) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8"><rect width="4" height="8" fill="#f00"/></svg>)");
    file.close();
    const QIcon icon = WindowIcon(file.fileName().toStdString());
    EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{16, 16}, {32, 32}, {64, 64}, {128, 128}}));
    for (int side : {16, 32, 64, 128}) {
        const QImage picture = Painted(icon, side);
        EXPECT_EQ(picture.pixelColor(side / 4, side / 2), QColor(255, 0, 0)) << side;
        EXPECT_EQ(picture.pixelColor(side * 3 / 4, side / 2).alpha(), 0) << side;
    }
}

}  // namespace
}  // namespace sorvane::forms
