// The image map's HTML byte for byte, and the coordinates of each kind of shape.
#include "common/Utf8.h"
#include "pagetools/ImageMapText.h"

#include <gtest/gtest.h>

TEST(ImageMapText, TheMapLineByLine)
{
    using ImageMapText::Shape;
    const QString map = ImageMapText::head(u("map1")) +
                        ImageMapText::areaLine(Shape::Rect, ImageMapText::rectCoords(QRect(10, 20, 100, 40)), u("new_page.htm")) +
                        ImageMapText::areaLine(Shape::Poly, ImageMapText::polygonCoords(u("10,20,30,40,50,60,")), u("")) +
                        ImageMapText::areaLine(Shape::Circle, u("50,50,16"), u("a \"b\".htm")) +
                        ImageMapText::tail(u("house.gif"), u("map1"), u("320"), u("200"));
    EXPECT_EQ(map, u("<!-- START IMAGE MAP COPY HERE -->\r\n\r\n<MAP NAME=\"map1\">\r\n"
                     "    <AREA SHAPE=\"RECT\" COORDS=10,20,110,60\"   HREF=\"new_page.htm\">\r\n"
                     "    <AREA SHAPE=\"POLY\" COORDS=10,20,30,40,50,60\"   HREF=\"\">\r\n"
                     "    <AREA SHAPE=\"CIRCLE\" COORDS=50,50,16\"   HREF=\"a \"b\".htm\">\r\n"
                     "</map>\r\n<P ALIGN=\"CENTER\">\r\n"
                     "<IMG SRC=\"house.gif\" BORDER=\"0\" USEMAP=\"#map1\" WIDTH=\"320\" HEIGHT=\"200\">\r\n</p>\r\n\r\n"
                     "<!-- End Image Map Copy Here -->"));
    EXPECT_EQ(ImageMapText::head(u("")), u("<!-- START IMAGE MAP COPY HERE -->\r\n\r\n<MAP NAME=\"\">\r\n"));
}

TEST(ImageMapText, Coordinates)
{
    const struct {
        QRect outline;
        const char* circle;
        const char* rect;
    } cases[] = {
        {QRect(0, 0, 40, 40), "20,20,16", "0,0,40,40"},
        {QRect(5, 7, 41, 41), "25,27,16", "5,7,46,48"},      // halves: whole parts
        {QRect(-10, -3, 9, 9), "-6,1,0", "-10,-3,-1,6"},     // whole parts round down, radius 4.5 - 4
        {QRect(100, 50, 6, 6), "103,53,-1", "100,50,106,56"},  // an outline smaller than 8 gives a negative radius
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ImageMapText::circleCoords(c.outline), u(c.circle));
        EXPECT_EQ(ImageMapText::rectCoords(c.outline), u(c.rect));
    }
    EXPECT_EQ(ImageMapText::polygonCoords(u("1,2,")), u("1,2"));
    EXPECT_EQ(ImageMapText::polygonCoords(u("")), u("")) << "a polygon closed before its first point";
}
