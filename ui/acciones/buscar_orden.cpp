#include "ui/acciones/buscar_orden.h"

#include "ui/dibujo/texto_qt.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quiralto {
namespace {

constexpr int ColumnaTítulo = 0;
constexpr int ColumnaDatos = 1;
constexpr int ColumnaEjemplo = 2;

// Small letters without accents, as whoever is in a hurry types them.
QString DevPlano(const QString& texto) {
    QString plano;
    for (const QChar c : texto.normalized(QString::NormalizationForm_KD).toLower())
        if (!c.isMark())
            plano += c;
    return plano;
}

// What is looked through: both names of the command.
QString DevNombres(const Orden& orden) {
    return DevPlano(DevQString(orden.título) + u' ' + DevQString(orden.texto));
}

bool MueveLaLista(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Up || tecla.key() == Qt::Key_Down ||
           tecla.key() == Qt::Key_PageUp || tecla.key() == Qt::Key_PageDown;
}

} // namespace

BuscarOrden::BuscarOrden(std::span<QAction* const> órdenes, QWidget* padre)
    : QDialog(padre), órdenes_(órdenes), txtBuscarOrden_(new QLineEdit(this)),
      lista_(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("frmBuscarOrden"));
    setWindowTitle(QStringLiteral("Buscar orden"));
    resize(760, 480);
    auto* etiqueta = new QLabel(QStringLiteral("&Parte del nombre:"), this);
    etiqueta->setBuddy(txtBuscarOrden_);
    txtBuscarOrden_->setObjectName(QStringLiteral("txtBuscarOrden"));
    txtBuscarOrden_->setAccessibleName(QStringLiteral("Parte del nombre de la orden"));
    txtBuscarOrden_->setClearButtonEnabled(true);
    txtBuscarOrden_->installEventFilter(this);
    CreaLista();
    auto* botones = new QDialogButtonBox(this);
    auto* elegir = botones->addButton(QStringLiteral("&Ejecutar"), QDialogButtonBox::AcceptRole);
    elegir->setObjectName(QStringLiteral("cmdEjecutarOrden"));
    elegir->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("cmdCancelarOrden"));
    cancelar->setAutoDefault(false);
    auto* caja = new QVBoxLayout(this);
    for (QWidget* parte : std::initializer_list<QWidget*>{etiqueta, txtBuscarOrden_, lista_})
        caja->addWidget(parte);
    caja->addWidget(botones);
    connect(txtBuscarOrden_, &QLineEdit::textChanged, this, &BuscarOrden::Filtra);
    connect(lista_, &QTreeWidget::itemDoubleClicked, this, &BuscarOrden::Elige);
    connect(botones, &QDialogButtonBox::accepted, this, &BuscarOrden::Elige);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void BuscarOrden::CreaLista() {
    lista_->setObjectName(QStringLiteral("listaÓrdenes"));
    lista_->setAccessibleName(QStringLiteral("Órdenes"));
    lista_->setHeaderLabels(
        {QStringLiteral("Orden"), QStringLiteral("Datos"), QStringLiteral("Ejemplo")});
    lista_->setRootIsDecorated(false);
    lista_->setUniformRowHeights(true);
    lista_->setAlternatingRowColors(true);
    for (const Orden& orden : DevÓrdenes()) {
        auto* fila = new QTreeWidgetItem(lista_);
        fila->setText(ColumnaTítulo, DevQString(orden.título));
        fila->setText(ColumnaDatos, DevQString(orden.forma.texto));
        fila->setText(ColumnaEjemplo, DevEjemplo(orden));
        fila->setToolTip(ColumnaTítulo, DevQString(orden.menú));
    }
    lista_->header()->setStretchLastSection(true);
    for (const int columna : {ColumnaTítulo, ColumnaDatos})
        lista_->resizeColumnToContents(columna);
}

void BuscarOrden::Abre(std::vector<std::size_t> posibles) {
    posibles_ = std::move(posibles);
    txtBuscarOrden_->clear();
    Filtra({});
    open();
    txtBuscarOrden_->setFocus();
}

// Every word that is typed is a part of a name. A row is marked, so that Enter suffices.
void BuscarOrden::Filtra(const QString& texto) {
    const QStringList palabras = DevPlano(texto).split(u' ', Qt::SkipEmptyParts);
    const std::span<const Orden> órdenes = DevÓrdenes();
    QTreeWidgetItem* primera = nullptr;
    QTreeWidgetItem* primeraPosible = nullptr;
    for (std::size_t i = 0; i < órdenes.size(); ++i) {
        const QString nombres = DevNombres(órdenes[i]);
        const bool vale = std::ranges::all_of(
            palabras, [&](const QString& palabra) { return nombres.contains(palabra); });
        QTreeWidgetItem* const fila = lista_->topLevelItem(static_cast<int>(i));
        fila->setHidden(!vale);
        if (vale && primera == nullptr)
            primera = fila;
        if (vale && primeraPosible == nullptr && std::ranges::find(posibles_, i) != posibles_.end())
            primeraPosible = fila;
    }
    lista_->setCurrentItem(primeraPosible == nullptr ? primera : primeraPosible);
    if (auto* elegir = findChild<QPushButton*>(QStringLiteral("cmdEjecutarOrden")))
        elegir->setEnabled(primera != nullptr);
}

void BuscarOrden::Elige() {
    const int fila = lista_->indexOfTopLevelItem(lista_->currentItem());
    if (fila < 0 || lista_->currentItem()->isHidden())
        return;
    accept();
    órdenes_[static_cast<std::size_t>(fila)]->trigger();
}

// The list is walked through from the box.
bool BuscarOrden::eventFilter(QObject* objeto, QEvent* suceso) {
    if (suceso->type() == QEvent::KeyPress && MueveLaLista(dynamic_cast<QKeyEvent&>(*suceso))) {
        QCoreApplication::sendEvent(lista_, suceso);
        return true;
    }
    return QDialog::eventFilter(objeto, suceso);
}

} // namespace quiralto
