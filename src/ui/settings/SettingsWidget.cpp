// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings/SettingsWidget.h"

#include "app/AppSettings.h"
#include "app/Identity.h"
#include "app/Translations.h"
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "services/MetricSender.h"
#include "ui/model/ValueLists.h"
#include "ui_SettingsPanel.h"

#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QSettings>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kPanelWidth = 440; // px
constexpr int kSlideTime = 220;  // ms
constexpr int kDimming = 90;     // alpha of 255 when the panel is in
const QLatin1String kEnglish("en");

QString languageName(const QString &code)
{
    if (code == kEnglish)
        return QStringLiteral("English");
    const QLocale locale(code);
    QString name = locale.nativeLanguageName();
    if (locale.language() == QLocale::C || name.isEmpty())
        return code;
    name[0] = name.at(0).toUpper();
    return name;
}

QPopupButton::Values profiles()
{
    return {{SettingsWidget::tr("Original quality"), QStringLiteral("original")},
            {SettingsWidget::tr("Plays everywhere"), QStringLiteral("everywhere")}};
}

} // namespace

SettingsWidget::SettingsWidget(AppSettings &settings, QSettings &store, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_store(store),
      m_ui(std::make_unique<Ui::SettingsPanel>()), m_panel(new QFrame(this))
{
    setObjectName(QStringLiteral("settingsWidget"));
    m_ui->setupUi(static_cast<QFrame *>(m_panel));
    m_panel->setObjectName(QStringLiteral("settingsPanel"));
    m_panel->setAccessibleName(tr("Settings"));
    setUpControls();
    fillLists();
    showVersion();
    m_slide.setDuration(kSlideTime);
    m_slide.setEasingCurve(QEasingCurve::OutCubic);
    m_slide.setStartValue(0.0);
    m_slide.setEndValue(1.0);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, &SettingsWidget::place);
    connect(&m_slide, &QVariantAnimation::finished, this, &SettingsWidget::onSlideFinished);
    parent->installEventFilter(this);
    hide();
}

SettingsWidget::~SettingsWidget() = default;

void SettingsWidget::setUpControls()
{
    m_ui->btnClose->setIcon(Theme::icon(QStringLiteral("close")));
    m_ui->btnOpenFolder->setIcon(Theme::icon(QStringLiteral("folder-open")));
    connect(m_ui->btnSave, &QPushButton::clicked, this, &SettingsWidget::onSave);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &SettingsWidget::on_btnCancel_clicked);
    connect(m_ui->btnClose, &QToolButton::clicked, this, &SettingsWidget::onHide);
    connect(m_ui->btnOpenFolder, &QPushButton::clicked, this,
            &SettingsWidget::on_btnOpenFolder_clicked);
    connect(m_ui->btnResolution, &QPopupButton::valueSelected, this, [this](const QVariant &value) {
        onChangeResolution(offeredResolutions().indexOf(value.toSize()));
    });
}

void SettingsWidget::fillLists()
{
    const auto fill = [](QPopupButton *button, const QPopupButton::Values &values) {
        const QVariant value = button->value();
        button->setValues(values);
        if (value.isValid())
            button->setValue(value);
    };
    fill(m_ui->btnTime, ValueLists::slideTimes());
    fill(m_ui->btnTransition, ValueLists::transitions());
    fill(m_ui->btnTransitionTime, ValueLists::transitionLengths());
    fill(m_ui->btnResolution, ValueLists::resolutions());
    fill(m_ui->btnOffset, ValueLists::offsets());
    fill(m_ui->btnFade, ValueLists::fades());
    fill(m_ui->btnProfile, profiles());
}

void SettingsWidget::showVersion()
{
    m_ui->lblVersion->setText(tr("version %1 - %2").arg(programVersion(), buildLabel()));
}

void SettingsWidget::fillLanguages()
{
    QStringList codes = Translations::available();
    codes.removeAll(kEnglish);
    codes.prepend(kEnglish);
    m_ui->cbxLanguage->clear();
    for (const QString &code : qAsConst(codes))
        m_ui->cbxLanguage->addItem(languageName(code), code);
    // As the translations are looked up: "de_AT" is served by "de".
    int index = codes.indexOf(m_settings.locale);
    if (index < 0)
        index = codes.indexOf(m_settings.locale.section(QLatin1Char('_'), 0, 0));
    m_ui->cbxLanguage->setCurrentIndex(std::max(index, 0));
    m_shownLanguage = m_ui->cbxLanguage->currentData().toString();
}

void SettingsWidget::showSettings()
{
    // Values that are not offered, from a file edited by hand, are kept and shown as they are.
    const auto seconds = [](QPopupButton *button, int value) {
        button->setValue(value, ValueLists::secondsText(value));
    };
    seconds(m_ui->btnTime, m_settings.defaultTime);
    seconds(m_ui->btnTransitionTime, m_settings.transitionTime);
    seconds(m_ui->btnOffset, m_settings.audioOffset);
    seconds(m_ui->btnFade, m_settings.audioFade);
    m_ui->btnTransition->setValue(m_settings.defaultTransition);
    m_ui->btnResolution->setValue(m_settings.resolution, resolutionToText(m_settings.resolution));
    m_ui->btnProfile->setValue(m_settings.outputProfile);
    m_ui->chkScaleToFit->setChecked(m_settings.scaleToFit);
    m_ui->chkOrigRatio->setChecked(m_settings.origRatio);
    m_ui->chkSpeedGeneration->setChecked(m_settings.speedGeneration);
    m_ui->chkAutoUpdates->setChecked(m_settings.autoUpdates);
    m_ui->chkStatistics->setChecked(m_settings.sendStatistics);
    m_ui->txtFolder->setText(QDir::toNativeSeparators(m_settings.folder));
    fillLanguages();
}

bool SettingsWidget::store()
{
    m_settings.defaultTime = m_ui->btnTime->value().toInt();
    m_settings.defaultTransition = m_ui->btnTransition->value().toInt();
    m_settings.transitionTime = m_ui->btnTransitionTime->value().toInt();
    m_settings.audioOffset = m_ui->btnOffset->value().toInt();
    m_settings.audioFade = m_ui->btnFade->value().toInt();
    m_settings.scaleToFit = m_ui->chkScaleToFit->isChecked();
    m_settings.origRatio = m_ui->chkOrigRatio->isChecked();
    const QSize resolution = resolutionFromText(m_ui->btnResolution->text());
    if (resolution.isValid())
        m_settings.resolution = resolution;
    m_settings.folder = QDir::fromNativeSeparators(m_ui->txtFolder->text());
    m_settings.speedGeneration = m_ui->chkSpeedGeneration->isChecked();
    m_settings.autoUpdates = m_ui->chkAutoUpdates->isChecked();
    m_settings.sendStatistics = m_ui->chkStatistics->isChecked();
    m_settings.outputProfile = m_ui->btnProfile->value().toString();
    const QString language = m_ui->cbxLanguage->currentData().toString();
    if (language != m_shownLanguage) {
        MetricSender::instance().record(QStringLiteral("chlan"), language);
        m_settings.locale = language;
    }
    return m_settings.save(m_store);
}

void SettingsWidget::open()
{
    showSettings();
    slideTo(true);
    m_ui->scrollSettings->ensureVisible(0, 0);
    m_ui->btnTime->setFocus();
}

void SettingsWidget::onHide()
{
    slideTo(false);
}

void SettingsWidget::onSave()
{
    const bool stored = store();
    emit saved();
    onHide();
    if (!stored)
        MessageDialog::inform(window(), tr("Settings"),
                              tr("The settings hold until the program ends, because they cannot "
                                 "be written to the file %1.")
                                  .arg(QDir::toNativeSeparators(m_store.fileName())));
}

void SettingsWidget::on_btnCancel_clicked()
{
    onHide();
}

void SettingsWidget::on_btnOpenFolder_clicked()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Choose the folder"), QDir::fromNativeSeparators(m_ui->txtFolder->text()));
    if (!folder.isEmpty())
        m_ui->txtFolder->setText(QDir::toNativeSeparators(folder));
}

void SettingsWidget::onChangeResolution(int index)
{
    if (index >= 0 && index < offeredResolutions().size())
        m_ui->btnResolution->setValue(offeredResolutions().at(index));
}

void SettingsWidget::slideTo(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    setGeometry(parentWidget()->rect());
    show();
    raise();
    m_slide.setDirection(open ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (m_slide.state() != QAbstractAnimation::Running)
        m_slide.start();
    place();
}

void SettingsWidget::onSlideFinished()
{
    if (m_open)
        return;
    hide();
    emit hidden();
}

void SettingsWidget::place()
{
    const int panelWidth = std::min(kPanelWidth, width());
    const int shown = qRound(panelWidth * m_slide.currentValue().toDouble());
    m_panel->setGeometry(width() - shown, 0, panelWidth, height());
    update();
}

bool SettingsWidget::event(QEvent *event)
{
    // The window behind must not act on keys that are meant for the panel.
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    return QWidget::event(event);
}

bool SettingsWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        setGeometry(parentWidget()->rect());
        place();
    }
    return QWidget::eventFilter(watched, event);
}

void SettingsWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor dimming(Theme::Text);
    dimming.setAlpha(qRound(kDimming * m_slide.currentValue().toDouble()));
    painter.fillRect(rect(), dimming);
}

void SettingsWidget::mousePressEvent(QMouseEvent *event)
{
    // Labels and blank space of the panel hand their presses on.
    if (!m_panel->geometry().contains(event->pos()))
        onHide();
}

void SettingsWidget::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        onHide();
    else if (enter && event->modifiers() & Qt::ControlModifier)
        onSave();
    else
        QWidget::keyPressEvent(event);
}

void SettingsWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(static_cast<QFrame *>(m_panel));
        m_panel->setAccessibleName(tr("Settings"));
        fillLists();
        showVersion();
    }
    QWidget::changeEvent(event);
}

/// What is dimmed cannot be reached: Tab stays within the panel.
bool SettingsWidget::focusNextPrevChild(bool next)
{
    QWidget *start = focusWidget() ? focusWidget() : this;
    QWidget *widget = start;
    do {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        const bool reachable = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
                               widget->isEnabled() && widget->isVisibleTo(this);
        if (reachable && m_panel->isAncestorOf(widget)) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            m_ui->scrollSettings->ensureWidgetVisible(widget);
            return true;
        }
    } while (widget != start);
    return false;
}

} // namespace velmora
