#include "source/SourceSheet.h"

#include "common/Say.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

#include <algorithm>

namespace dyeworks::plugins {

namespace {

enum PaletteChoice { kNoPalette, kBank, kWholePalette };

constexpr int kMostAlignment = 64;

/// Of the program's settings, in a section that is this plug-in's.
QSettings settings() {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quillon"),
            QStringLiteral("Orrery Dyeworks")};
}

QString key(const QWidget& control) {
    return QStringLiteral("SourcePlugIn/") + control.objectName();
}

void select(QComboBox& box, int data) {
    box.setCurrentIndex(std::max(box.findData(data), 0));
}

} // namespace

SourceSheet::SourceSheet(bool hasPalette, QWidget* parent)
    : QDialog(parent)
    , kind_(new QComboBox(this))
    , name_(new QLineEdit(this))
    , names_(new QLabel(this))
    , texels_(new QCheckBox(say("Te&xels", "テクセル(&X)"), this))
    , palette_(new QComboBox(this))
    , alignment_(new QComboBox(this))
    , hasPalette_(hasPalette) {
    setWindowTitle(say("Export Source", "ソースのエクスポート"));
    kind_->addItem(say("Header alone (.h)", "ヘッダーのみ (.h)"), static_cast<int>(SourceKind::Header));
    kind_->addItem(say("Header and source (.h, .c)", "ヘッダーとソース (.h, .c)"),
                   static_cast<int>(SourceKind::HeaderAndSource));
    kind_->addItem(say("Raw bytes, big-endian (.bin)", "バイト列、ビッグ エンディアン (.bin)"),
                   static_cast<int>(SourceKind::Raw));
    palette_->addItem(say("None", "なし"), kNoPalette);
    palette_->addItem(say("The colours that the image uses", "画像が使う色"), kBank);
    palette_->addItem(say("Whole", "全体"), kWholePalette);
    for (int bytes = 1; bytes <= kMostAlignment; bytes *= 2)
        alignment_->addItem(bytes == 1 ? say("None", "なし") : say("%1 bytes", "%1 バイト").arg(bytes),
                            bytes);

    auto* const form = new QFormLayout(this);
    const auto add = [&](QWidget* control, const char* name, const QString& label, const QString& tip) {
        control->setObjectName(QString::fromLatin1(name));
        control->setToolTip(tip);
        control->setAccessibleDescription(tip);
        form->addRow(label, control);
    };
    add(kind_, "Kind", say("&Write:", "書き出すもの(&W):"), say("The files to write", "書き出すファイル"));
    add(name_, "Name", say("&Name:", "名前(&N):"),
        say("What the arrays' names begin with; the line below shows what becomes of it",
            "配列の名前の始まり。下の行が実際の名前です"));
    names_->setObjectName(QStringLiteral("Names"));
    form->addRow(QString(), names_);
    add(texels_, "Texels", QString(), say("Write the image's texels", "画像のテクセルを書き出します"));
    add(palette_, "Palette", say("&Palette:", "パレット(&P):"),
        say("How much of the palette is written", "パレットのうち書き出す部分"));
    add(alignment_, "Alignment", say("&Alignment:", "アライメント(&A):"),
        say("The addresses of the arrays are multiples of this", "配列のアドレスはこの倍数になります"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    ok_->setText(say("OK", "OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(say("Cancel", "キャンセル"));
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SourceSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    restore();
    palette_->setEnabled(hasPalette);
    for (QComboBox* const box : {kind_, palette_})
        connect(box, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(name_, &QLineEdit::textChanged, this, [this] { refresh(); });
    connect(texels_, &QCheckBox::toggled, this, [this] { refresh(); });
    refresh();
}

SourceChoices SourceSheet::choices() const {
    SourceChoices choices;
    choices.kind = static_cast<SourceKind>(kind_->currentData().toInt());
    choices.options.name = identifierOf(name_->text().toStdString());
    choices.options.alignment = alignment_->currentData().toInt();
    choices.options.withTexels = texels_->isChecked();
    const int palette = hasPalette_ ? palette_->currentData().toInt() : kNoPalette;
    choices.options.withPalette = palette != kNoPalette;
    choices.options.wholePalette = palette == kWholePalette;
    return choices;
}

void SourceSheet::accept() {
    QSettings kept = settings();
    for (const QComboBox* const box : {kind_, palette_, alignment_})
        kept.setValue(key(*box), box->currentData());
    kept.setValue(key(*name_), name_->text());
    kept.setValue(key(*texels_), texels_->isChecked() ? 1 : 0);
    QDialog::accept();
}

void SourceSheet::restore() {
    const QSettings kept = settings();
    select(*kind_, kept.value(key(*kind_), static_cast<int>(SourceKind::Header)).toInt());
    select(*palette_, kept.value(key(*palette_), kBank).toInt());
    select(*alignment_, kept.value(key(*alignment_), SourceOptions().alignment).toInt());
    name_->setText(kept.value(key(*name_), QStringLiteral("texture")).toString());
    texels_->setChecked(kept.value(key(*texels_), 1).toInt() != 0);
}

void SourceSheet::refresh() {
    const SourceChoices chosen = choices();
    const bool isRaw = chosen.kind == SourceKind::Raw;
    name_->setEnabled(!isRaw);
    QStringList names;
    const QString name = QString::fromStdString(chosen.options.name);
    if (chosen.options.withTexels)
        names += name + QStringLiteral("_texels");
    if (chosen.options.withPalette)
        names += name + QStringLiteral("_palette");
    ok_->setEnabled(!names.isEmpty());
    names_->setText(isRaw ? QString() : names.join(QStringLiteral(", ")));
}

} // namespace dyeworks::plugins
