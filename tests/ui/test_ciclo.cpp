// Windows created and destroyed over and over leave nothing behind.
#include "apoyo_ui.h"
#include "estado.h"

#include <malloc.h>

#include <gtest/gtest.h>

namespace {

// Under AddressSanitizer the heap figures mean nothing; there LeakSanitizer
// checks every cycle when the process ends.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kHeapSignificativo = false;
#else
constexpr bool kHeapSignificativo = true;
#endif

std::size_t MemoriaEnUso()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    malloc_trim(0);
    return mallinfo2().uordblks;
}

// Opens the dialog behind `comando` and closes it again, `veces` times.
void AbreYCierra(QAction *comando, int veces)
{
    for (int i = 0; i < veces; ++i) {
        CuandoModal([](QWidget *w) { w->close(); });
        comando->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

TEST(Ciclo, EveryDialogAThousandTimesKeepsTheHeapFlat)
{
    ReiniciaPrograma();
    AzarGuionado azar;
    Arranca(false);
    ui::VentanaPrincipal &f = Form1();
    const auto ronda = [&f](int veces) {
        AbreYCierra(f.mnuNivel, veces);
        AbreYCierra(f.mnuacerca, veces);
        AbreYCierra(f.mnuSeleccionIdioma, veces);
        RespondeOponentes("Ana", "Beto");
        f.mnu1vs2->trigger();
        AbreYCierra(f.mnuoponentes, veces);
        f.mnuvspc->trigger();
    };
    ronda(20); // caches, fonts and first-use allocations settle
    const std::size_t antes = MemoriaEnUso();
    ronda(1000);
    const std::size_t despues = MemoriaEnUso();
    if (kHeapSignificativo) {
        EXPECT_LT(despues, antes + 64 * 1024) << "from " << antes << " to " << despues << " bytes";
    }
    EXPECT_EQ(frmNivel.Existe(), true); // recreated hidden by the captions, as in play
    EXPECT_FALSE(frmAbout.Existe());
    ReiniciaPrograma();
}
