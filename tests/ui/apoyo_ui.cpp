#include "apoyo_ui.h"

#include "estado.h"
#include "idioma.h"

#include <QApplication>
#include <QKeyEvent>
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
    // A full turn of the application's loop: pending deletions and quit
    // requests are consumed, and an earlier end of the program is forgotten.
    CorreHastaElFin([] { QCoreApplication::exit(0); });
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
    UsaFuenteAzar(nullptr);
}

int CorreHastaElFin(const std::function<void()> &accion)
{
    QTimer inicio;
    inicio.setSingleShot(true);
    QObject::connect(&inicio, &QTimer::timeout, accion);
    QTimer limite;
    limite.setSingleShot(true);
    QObject::connect(&limite, &QTimer::timeout, [] { QCoreApplication::exit(99); });
    inicio.start(0);
    limite.start(3000);
    return QCoreApplication::exec();
}

QPointer<QObject> CuandoModal(std::function<void(QWidget *)> accion)
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
        } else if (++*intentos > 100000) {
            reloj->stop();
            reloj->deleteLater();
            ADD_FAILURE() << "no modal window opened";
            if (m)
                m->close();
        }
    });
    reloj->start(0);
    return reloj;
}

void Arranca(bool ingles)
{
    Main();
    ui::VentanaIdioma &seleccion = frmSeleccion();
    if (ingles)
        Clic(seleccion.optIngles);
    Clic(seleccion.cmdAceptar);
    ASSERT_TRUE(Form1.Existe());
    // Let the closed language window settle, as the running program would.
    QCoreApplication::sendPostedEvents();
}

void Teclea(QWidget *w, const QString &texto)
{
    for (QChar c : texto) {
        QKeyEvent pulsa(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QKeyEvent suelta(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QApplication::sendEvent(w, &pulsa);
        QApplication::sendEvent(w, &suelta);
    }
}

void Clic(QAbstractButton *b)
{
    // An option button takes clicks on its circle and caption only, not on
    // the empty rest of its rectangle.
    const bool opcion = qobject_cast<QRadioButton *>(b) != nullptr;
    QTest::mouseClick(b, Qt::LeftButton, {}, opcion ? QPoint(6, b->height() / 2) : QPoint());
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
        auto *d = dynamic_cast<ui::DialogoOponentes *>(w);
        ASSERT_NE(d, nullptr);
        Teclea(d->Text1[0], uno);
        Teclea(d->Text1[1], dos);
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
