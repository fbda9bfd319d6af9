// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// What must be seen in the tree, whatever the colours are.
class FeatureLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testUncheckedBoxHasAFrame_data();
    void testUncheckedBoxHasAFrame();
    void testLevelBoxFitsItsWordsInAnotherLanguage();

private:
    QScopedPointer<CPanelRig> m_rig;
    QPalette m_palette;
};

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

// From 1, the same, to 21, black on white.
double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

void FeatureLookTest::init()
{
    m_palette = QApplication::palette();
    m_rig.reset(new CPanelRig);
    m_rig->features.addCategory("Control", "Control");
    for (const char *name : {"First", "Even", "Odd"}) {
        m_rig->features.add<CLiveBoolean>(name, InterfaceBoolean, "false");
    }
}

void FeatureLookTest::cleanup()
{
    m_rig.reset();
    QApplication::setPalette(m_palette);
}

void FeatureLookTest::testUncheckedBoxHasAFrame_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"Even", "Odd"}) {
        QTest::addRow("light, %s row", name)
            << QColor(0xf2f2f2) << QColor(Qt::white) << QColor(0x1a1a1a) << QByteArray(name);
        QTest::addRow("dark, %s row", name)
            << QColor(0x2d2d30) << QColor(0x1e1e1e) << QColor(0xe6e6e6) << QByteArray(name);
    }
}

void FeatureLookTest::testUncheckedBoxHasAFrame()
{
    QFETCH(QColor, window);
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    QFETCH(QByteArray, name);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette palette(window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, text);
    QApplication::setPalette(palette);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo(name.constData()) && m_rig->goTo("First"));
    const QRect box = m_rig->checkBox(name.constData());
    const QImage image = m_rig->view().viewport()->grab().toImage();
    const QPoint middle(box.left(), box.center().y());
    const QColor ground = image.pixelColor(middle - QPoint(2, 0));
    for (const QPoint &side :
         {middle, QPoint(box.right(), box.center().y()), QPoint(box.center().x(), box.top()),
          QPoint(box.center().x(), box.bottom())}) {
        const double found = contrast(image.pixelColor(side), ground);
        QVERIFY2(found >= 3.0, qPrintable(QString::number(found)));
    }
}

void FeatureLookTest::testLevelBoxFitsItsWordsInAnotherLanguage()
{
    QVERIFY(m_rig->open());
    const int before = m_rig->level().width();
    m_rig->level().setItemText(1, "a much longer word than that for an expert");
    QTRY_VERIFY(m_rig->level().width() > before);
    QCOMPARE(m_rig->level().width(), m_rig->level().sizeHint().width());
    QVERIFY(m_rig->level().width()
            > m_rig->level().fontMetrics().horizontalAdvance(m_rig->level().itemText(1)));
}

QTEST_MAIN(FeatureLookTest)
#include "FeatureLookTest.moc"
