// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/valuetable.h"

#include <QLocale>

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A user's decimal comma must not matter.
        QLocale::setDefault(QLocale("de_DE"));
        setlocale(LC_ALL, "de_DE.UTF-8");
    }

    void values_data()
    {
        addValueColumns();

        const ValueRows<VySmil::VyCount> count{"count"};
        count("", 0, "2 1", "");
        count("2.5|  ", 0, "2 2.5", "");
        count("5|\u00a0INDEFINITE\u2003", 0, "0 5", "indefinite");
        count("indefinitely", 3, "2 0", "");
        count("\u0130ndefinite", 3, "2 0", "");
        count("2.5", 0, "1 2.5", "2.5");
        count("-0.5", 0, "1 -0.5", "-0.5");
        count("+.5", 0, "1 0.5", "0.5");
        count("5.", 0, "1 5", "5");
        count("1e3", 0, "1 1000", "1000");
        count("1E+07", 0, "1 10000000", "1e+07");
        count("1234567", 0, "1 1234567", "1.23457e+06");
        count("1e-3", 0, "1 0.00100000005", "0.001");
        count(".", 3, "2 0", "");
        count("+", 3, "2 0", "");
        count("+.", 3, "2 0", "");
        count("-.", 3, "2 0", "");
        count("1e", 3, "2 1", "");
        count("1e+", 3, "2 1", "");
        count("3x", 3, "2 3", "");
        count("1.2.3", 3, "2 1.20000005", "");
        count("1,5", 3, "2 1", "");
        count("1 000", 3, "2 1", "");
        count("0x10", 3, "2 0", "");
        count("inf", 3, "2 0", "");
        count("nan", 3, "2 0", "");
        count("\u0661", 3, "2 0", "");
        count("\u00b2", 3, "2 0", "");
        count("1e39", 3, "2 3.40282347e+38", "");
        count("-1e400x", 3, "2 -3.40282347e+38", "");
        count("3.4028234e38", 0, "1 3.40282347e+38", "3.40282e+38");
        count("1e-400", 0, "1 0", "0");
        count("1e-60", 0, "1 0", "0");
        count("1e-45", 0, "1 1.40129846e-45", "1.4013e-45");
        count("1e99999999999999999999", 3, "2 3.40282347e+38", "");
        count(QString(2000, u'0') + "7." + QString(2000, u'0'), 0, "1 7", "7");

        const ValueRows<VySmil::VyIndex> index{"index"};
        index("", 0, "3 0", "");
        index("AUTO", 0, "0 0", "auto");
        index("7|Inherit", 0, "2 7", "inherit");
        index("7| ", 0, "3 7", "");
        index("+5", 0, "1 5", "5");
        index("-0", 3, "3 0", "");
        index("7|-1", 3, "3 0", "");
        index("4294967295", 0, "1 4294967295", "4294967295");
        index("4294967296", 3, "3 0", "");
        index("99999999999999999999999", 3, "3 0", "");
        index("autos", 3, "3 0", "");
        index("1.0", 3, "3 0", "");
        index("+ 5", 3, "3 0", "");

        const ValueRows<VySmil::VyMediaLength> media{"media length"};
        media("7| ", 0, "2 7", "");
        media("-5", 0, "0 -5", "-5");
        media("-2147483648", 0, "0 -2147483648", "-2147483648");
        media("-2147483649", 3, "0 0", "0");
        media("2147483648", 3, "0 0", "0");
        media("100px", 3, "0 0", "0");
        media(" 50% ", 0, "1 50", "50.000000%");
        media("-12.5%", 0, "1 -12.5", "-12.500000%");
        media("12.5 %", 3, "1 12.5", "12.500000%");
        media("12abc%", 3, "1 12", "12.000000%");
        media("%", 3, "1 0", "0.000000%");
        media("50%%", 3, "1 50", "50.000000%");
        media("1e-9%", 0, "1 9.99999972e-10", "0.000000%");

        const ValueRows<VySmil::VyBandWidth> band{"bandwidth"};
        band("7| ", 0, "2 7", "");
        band("64000", 0, "0 64000", "64000");
        band(" 50 %", 0, "1 50", "50%");
        band("12.5%", 3, "1 0", "0%");
        band("%", 3, "1 0", "0%");
        band("-5", 3, "0 0", "0");
        band("4294967295%", 0, "1 4294967295", "4294967295%");

        const ValueRows<VySmil::VyLength> length{"length"};
        length("", 0, "2 0", "");
        length(" 120 ", 0, "0 120", "120");
        length("120PX", 0, "0 120", "120");
        length("12.7", 0, "0 12", "12");
        length("7| ", 0, "2 7", "");
        length("100%px", 0, "0 100", "100");
        length("7|-10", 3, "0 0", "0");
        length("+5", 3, "0 0", "0");
        length("5\u00b2px", 3, "0 0", "0");
        length("5\u0661", 3, "0 0", "0");
        length("2147483647px", 0, "0 2147483647", "2147483647");
        length("2147483648", 3, "0 0", "0");
        length("50%", 0, "1 50", "50.000000%");
        length("33.3%", 0, "1 33.2999992", "33.299999%");
        length("-1e1%", 0, "1 -10", "-10.000000%");
        length(" 12.5 % ", 3, "1 12.5", "12.500000%");
        length("50%%", 3, "1 50", "50.000000%");
        length("1e39%", 3, "1 3.40282347e+38", "340282346638528859811704183484516925440.000000%");

        const ValueRows<VySmil::VySize> size{"size"};
        size("", 0, "2 0", "");
        size("100", 3, "2 0", "");
        size("5px| ", 0, "2 5", "");
        size("50%|%", 3, "1 0", "0%");
        size("5px|px", 3, "0 0", "0px");
        size("7px|5p", 3, "0 7", "7px");
        size("5p", 3, "2 0", "");
        size("5px|100", 3, "0 5", "5px");
        size("50%", 0, "1 0.5", "50%");
        size("33.3%", 0, "1 0.333000004", "33.3%");
        size(" -5 PX", 0, "0 -5", "-5px");
        size("10 pxabc", 0, "0 10", "10px");
        size("10px%", 0, "0 10", "10px");
        size("50%px", 3, "0 0", "0px");
        size("1.5px", 3, "0 0", "0px");
        size("12x%9", 3, "1 0.119999997", "12%");
        size("12.5%9", 0, "1 0.125", "12.5%");
        size("1234567%", 0, "1 12345.6699", "1.23457e+06%");

        const ValueRows<VySmil::VyCoords> coords{"coords"};
        coords("", 0, "2 0 0 0 0", "");
        coords("10,-20 , +30,40", 0, "0 10 -20 30 40", "10,-20,30,40");
        coords("5", 0, "0 5 5 5 5", "5,5,5,5");
        coords("1,2,3,4,x", 0, "0 1 2 3 4", "1,2,3,4");
        coords("1,2,", 3, "2 1 2 0 0", "");
        coords("1,2,3,4|10,20,x,40", 3, "2 10 20 0 4", "");
        coords("10px,20px,30px,40px", 3, "2 0 0 0 0", "");
        coords("50%, 25%,12.5%,100%", 0, "1 0.5 0.25 0.125 1", "50%,25%,12.5%,100%");
        coords("10%,20%,30%", 3, "2 0 0 0 0", "");
        coords("1%,2%,3%,4%,5%", 3, "2 0 0 0 0", "");
        coords("1,2,3,4|10,20,30,40%", 3, "2 1 2 3 4", "");
        // The bits of 10%, 20%, 30% and 40%: without a "%" the slot stays, with it the number is 0.
        coords("10%,20%,30%,40%|50,1%,2%,3%", 3, "2 1036831949 1045220557 1050253722 1053609165", "");
        coords("10%,20%,30%,40%|,1%,2%,3%", 3, "2 1036831949 1045220557 1050253722 1053609165", "");
        coords("10%,20%,30%,40%|%,1%,2%,3%", 3, "2 0 1045220557 1050253722 1053609165", "");
        coords("10%x,20%,30%,40%", 0, "1 0.100000001 0.200000003 0.300000012 0.400000006", "10%,20%,30%,40%");

        const ValueRows<VySmil::VyColor> color{"color"};
        color("", 0, "5 none ", "");
        color(" TRANSPARENT ", 0, "0 none ", "transparent");
        color("#FF0800|Inherit", 0, "4 #ff0800 ", "inherit");
        color("#FF0800", 0, "2 #ff0800 ", "#ff0800");
        color("#fb0", 0, "2 #ffbb00 ", "#ffbb00");
        color("#000|#ggg", 3, "5 #000000 ", "");
        color("#12345", 3, "5 none ", "");
        color("#1234567", 3, "5 none ", "");
        color("#+1-0 f", 0, "2 #01000f ", "#01000f");
        color("#-1-1-1", 3, "5 none ", "");
        color("rgb( 255 ,+128,0)x", 0, "2 #ff8000 ", "#ff8000");
        color("RGB:1,2,3)", 0, "2 #010203 ", "#010203");
        color("rgb(100%, 50.9%,-0.9%)", 0, "2 #ff7f00 ", "#ff7f00");
        color("rgb(100%,50,0%)", 0, "2 #ff7f00 ", "#ff7f00");
        color("rgb(101%,0%,0%)", 3, "5 none ", "");
        color("rgb(1e38%,0%,0%)", 3, "5 none ", "");
        color("rgb(256,0,0)", 3, "5 none ", "");
        color("rgb(-1,0,0)", 3, "5 none ", "");
        color("rgb(1,2)", 3, "5 none ", "");
        color("rgb(1,2,3", 3, "5 none ", "");
        color("rgb", 3, "5 none ", "");
        color("rgb(1%,x%,3%)", 3, "5 none ", "");
        color("rgb(,,)", 3, "5 none ", "");
        color("rga(1,2,3)", 3, "5 none ", "");
        color("rgb)1,2,3", 3, "5 none ", "");
        color("ButtonFace|#000", 0, "2 #000000 buttonface", "#000000");
        color("Grayed", 0, "3 none grayed", "grayed");
        color("Bac\u212aground", 0, "3 none background", "background");
        color("red", 3, "5 none ", "");
    }
    void values() { checkValueRow(); }

    void systemColors()
    {
        const QStringList names =
            QString(
                "ActiveBorder ActiveCaption AppWorkspace Background ButtonFace ButtonHighlight ButtonShadow "
                "ButtonText CaptionText GrayText Grayed Highlight HighlightText InactiveBorder "
                "InactiveCaption "
                "InactiveCaptionText InfoBackground InfoText Menu MenuText Scrollbar ThreeDDarkShadow "
                "ThreeDFace "
                "ThreeDHighlight ThreeDLightShadow ThreeDShadow Window WindowFrame WindowText")
                .split(u' ');
        QCOMPARE(names.size(), qsizetype(29));
        for (const QString &name : names) {
            VySmil::VyColor color;
            QCOMPARE(color.fromString(name), 0);
            QCOMPARE(color.toString(), name.toLower());
            QCOMPARE(color.fromString(name + "s"), 3);
        }
    }

    void kindsOutsideTheirList()
    {
        VySmil::VyCount count;
        count.kind = static_cast<VySmil::VyCount::COUNT_KIND>(9);
        QCOMPARE(count.toString(), QString("1"));
        VySmil::VyBandWidth band;
        band.kind = static_cast<VySmil::NUMBER_KIND>(9);
        QCOMPARE(band.toString(), QString(""));
        VySmil::VyColor color;
        color.kind = VySmil::VyColor::COLOR_NAMED;
        color.name = "Own";
        QCOMPARE(color.toString(), QString("Own"));
        QCOMPARE(color.fromString(color.name), 3);
    }
};

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
