#include "apoyo_ui.h"

#include "estado.h"
#include "idioma.h"

#include <QApplication>
#include <QMessageBox>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

void ReiniciaPrograma()
{
    // Deleting one window may take others with it: hold them by QPointer.
    QList<QPointer<QWidget>> ventanas;
    for (QWidget *w : QApplication::topLevelWidgets())
        ventanas.append(w);
    for (const QPointer<QWidget> &w : ventanas)
        delete w.data();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    BorraEstado();
    for (QString *s : {&strAcerca,        &strSalir,         &strSeleccionIdioma,
                       &strTitulo,        &strOpciones,      &strAcercaTexto,
                       &strAceptar,       &strCancelar,      &strAcercaTitulo,
                       &strJugadorUno,    &strJugadorDos,    &strFacil,
                       &strMedio,         &strNoGanas,       &strNivelMenu,
                       &strNuevoJuego,    &strOponentesMenu, &strOponentes,
                       &strNombrePrimero, &strNombreSegundo, &strGana,
                       &strFelicidades,   &strEmpate,        &strTurnoDe,
                       &strPierdes,       &strTuTurno,       &strNivel})
        s->clear();
    ReiniciaAzar();
}

void CuandoModal(std::function<void(QWidget *)> accion)
{
    auto *reloj = new QTimer;
    QPointer<QWidget> antes = QApplication::activeModalWidget();
    auto intentos = std::make_shared<int>(0);
    QObject::connect(reloj, &QTimer::timeout, [reloj, accion, antes, intentos] {
        QWidget *m = QApplication::activeModalWidget();
        if (m && m != antes && m->isVisible()) {
            reloj->stop();
            reloj->deleteLater();
            accion(m);
        } else if (++*intentos > 2000) {
            reloj->stop();
            reloj->deleteLater();
            ADD_FAILURE() << "no modal window opened";
            if (m)
                m->close();
        }
    });
    reloj->start(1);
}

void Arranca(bool ingles)
{
    Main();
    ui::frmSeleccion &seleccion = frmSeleccion();
    if (ingles)
        Clic(seleccion.optIngles);
    Clic(seleccion.cmdAceptar);
    ASSERT_TRUE(Form1.Existe());
}

void Clic(QAbstractButton *b)
{
    QTest::mouseClick(b, Qt::LeftButton);
}

void Juega(std::initializer_list<int> botones)
{
    for (int k : botones)
        Clic(Form1().cmdtir[static_cast<std::size_t>(k)]);
}

std::string Casillas()
{
    std::string s;
    for (QPushButton *b : Form1().cmdtir)
        s += b->text().isEmpty() ? std::string(".") : b->text().toStdString();
    return s;
}

QString Estado()
{
    return Form1().Panel->text();
}

QString Titulo()
{
    return Form1().windowTitle();
}

void RespondeOponentes(const QString &uno, const QString &dos, bool cancela)
{
    CuandoModal([=](QWidget *w) {
        auto *d = dynamic_cast<ui::frmoponentes *>(w);
        ASSERT_NE(d, nullptr);
        QTest::keyClicks(d->Text1[0], uno);
        QTest::keyClicks(d->Text1[1], dos);
        Clic(cancela ? d->Command2 : d->Command1);
    });
}

Mensaje CierraMensaje(QWidget *caja)
{
    auto *m = qobject_cast<QMessageBox *>(caja);
    if (!m) {
        ADD_FAILURE() << "not a message box";
        caja->close();
        return {};
    }
    EXPECT_EQ(m->icon(), QMessageBox::Information);
    EXPECT_EQ(m->buttons().size(), 1);
    Mensaje r{m->windowTitle(), m->text()};
    m->accept();
    return r;
}
