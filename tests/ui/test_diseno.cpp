// The main window as designed: geometry, fonts, tab order, menu, window flags.
#include "apoyo_ui.h"
#include "estado.h"

#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class Diseno : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

} // namespace

TEST_F(Diseno, GeometryInPixelsAtFifteenTwipsEach)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    EXPECT_EQ(f.centralWidget()->size(), QSize(319, 325));
    EXPECT_EQ(f.Panel->geometry(), QRect(38, 6, 239, 39));
    EXPECT_EQ(f.cmdnuevo->geometry(), QRect(113, 292, 81, 27));
    EXPECT_EQ(f.cmdtir[0]->geometry(), QRect(41, 58, 63, 55));
    EXPECT_EQ(f.cmdtir[5]->geometry(), QRect(201, 130, 63, 55));
    EXPECT_EQ(f.cmdtir[7]->geometry(), QRect(121, 202, 63, 55));
    EXPECT_DOUBLE_EQ(f.cmdtir[4]->font().pointSizeF(), 24.0);
    EXPECT_EQ(f.cmdtir[4]->font().weight(), QFont::Normal);
    EXPECT_TRUE(f.Panel->font().bold());
    EXPECT_EQ(f.Panel->alignment(), Qt::AlignCenter);
    EXPECT_EQ(f.Panel->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(f.Panel->palette().color(QPalette::Window), QColor(236, 233, 216));

    // Fixed size, close and minimise only.
    f.Muestra();
    EXPECT_EQ(f.minimumSize(), f.maximumSize());
    EXPECT_TRUE(f.windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_TRUE(f.windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(f.windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_TRUE(f.windowIcon().availableSizes().contains(QSize(32, 32)));
}

TEST_F(Diseno, TabOrderStartsOnTheBottomRightSquare)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    EXPECT_EQ(QApplication::focusWidget(), f.cmdtir[8]);
    const auto recorre = [&f](int pasos) {
        std::vector<QWidget *> visitados;
        for (int i = 0; i < pasos; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visitados.push_back(QApplication::focusWidget());
        }
        return visitados;
    };
    std::vector<QWidget *> esperado(f.cmdtir.begin(), f.cmdtir.begin() + 8);
    esperado.push_back(f.cmdtir[8]); // the disabled new-game button is skipped
    EXPECT_EQ(recorre(9), esperado);

    Juega({0, 1, 3}); // the computer completes 2-4-6
    ASSERT_EQ(Estado(), "Lo siento tu pierdes");
    ASSERT_TRUE(f.cmdnuevo->isEnabled());
    f.cmdtir[8]->setFocus();
    esperado.back() = f.cmdnuevo;
    esperado.push_back(f.cmdtir[8]);
    EXPECT_EQ(recorre(10), esperado);
}

TEST_F(Diseno, MenuMirrorsTheMode)
{
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    const auto estados = [&f] {
        return std::vector<bool>{f.mnuvspc->isChecked(), f.mnu1vs2->isChecked(),
                                 f.mnuNivel->isEnabled(), f.mnuoponentes->isEnabled()};
    };
    EXPECT_EQ(estados(), (std::vector<bool>{true, false, true, false}));
    const QList<QAction *> items = f.mnuOpciones->actions();
    ASSERT_EQ(items.size(), 8);
    EXPECT_TRUE(items[2]->isSeparator());
    EXPECT_EQ(items[3], f.mnuNivel);
    EXPECT_EQ(items[7], f.mnuSalir);
    for (QAction *a : items)
        EXPECT_TRUE(a->shortcut().isEmpty());

    RespondeOponentes("Ana", "Beto");
    f.mnu1vs2->trigger();
    EXPECT_EQ(estados(), (std::vector<bool>{false, true, false, true}));
    f.mnuvspc->trigger();
    EXPECT_EQ(estados(), (std::vector<bool>{true, false, true, false}));
    EXPECT_EQ(Modo, 1);
}
