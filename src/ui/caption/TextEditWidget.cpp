// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/TextEditWidget.h"

#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/TitleBackground.h"
#include "project/slides/TransitionType.h"
#include "ui/model/ValueLists.h"
#include "ui_TextEditWidget.h"

#include <QEvent>
#include <QShortcut>
#include <QUndoStack>
#include <QVariant>

namespace velmora
{

TextEditWidget::TextEditWidget(ProjectEditor &editor, QWidget *parent)
    : QWidget(parent), m_editor(editor), m_ui(std::make_unique<Ui::TextEditWidget>())
{
    m_ui->setupUi(this);
    setUpControls();
    setUpTabOrder();
    setUpShortcuts();
    fillEffects();
    connect(&m_editor, &ProjectEditor::projectChanged, this, &TextEditWidget::cancel);
    connect(&m_editor, &ProjectEditor::slidesChanged, this, &TextEditWidget::onSlidesChanged);
    connect(&m_editor, &ProjectEditor::slideChanged, this, [this](ProjectItem *slide) {
        if (slide != m_item)
            return;
        if (!isEdited())
            fill();
        updatePicture();
    });
    connect(&m_editor, &ProjectEditor::settingsChanged, this, [this] { updatePicture(); });
}

TextEditWidget::~TextEditWidget() = default;

void TextEditWidget::setUpControls()
{
    m_ui->frameTextSettings->setProperty("card", true);
    for (QLabel *label : {m_ui->lbTextEditSlideName, m_ui->lbText, m_ui->lbTextSettings,
                          m_ui->lbTextPosition, m_ui->lbBackgoundColors})
        label->setProperty("heading", true);
    m_ui->butSaveText->setProperty("primary", true);
    m_ui->btnBackInTextEdit->setIcon(Theme::icon(QStringLiteral("back")));
    m_ui->btnPlayEffect->setIcon(Theme::icon(QStringLiteral("play")));
    m_ui->cbBgColor->setNoneAllowed(true);
    m_ui->cbFont->setInsertPolicy(QComboBox::NoInsert);
    m_ui->cbFont->setMinimumContentsLength(6);
    m_ui->cbFont->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ui->cbEffect->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ui->cbEffect->setMinimumContentsLength(6);

    const auto show = [this] { updatePicture(); };
    connect(m_ui->teProjectItemText, &QTextEdit::textChanged, this, show);
    connect(m_ui->teProjectItemText, &QTextEditEx::accepted, this, &TextEditWidget::save);
    connect(m_ui->cbFont, &QFontComboBox::currentFontChanged, this, [this](const QFont &font) {
        m_family = font.family();
        updatePicture();
    });
    connect(m_ui->cbColor, &ColorBox::colorChosen, this, show);
    connect(m_ui->cbBgColor, &ColorBox::colorChosen, this, show);
    connect(m_ui->chkTitleToo, &QCheckBox::toggled, this, &TextEditWidget::announceEdited);
    connect(m_ui->framePosition, &PositionPicker::positionChosen, this, show);
    connect(m_ui->frameStarterBg, &BackgroundPicker::backgroundChosen, this,
            &TextEditWidget::onBackgroundChosen);
    const auto play = [this] { updatePicture(Play::Yes); };
    connect(m_ui->cbEffect, QOverload<int>::of(&QComboBox::activated), this, play);
    connect(m_ui->btnPlayEffect, &QToolButton::clicked, this, play);
    connect(m_ui->butSaveText, &QPushButton::clicked, this, &TextEditWidget::save);
    connect(m_ui->butCancelText, &QPushButton::clicked, this, &TextEditWidget::cancel);
    connect(m_ui->btnBackInTextEdit, &QToolButton::clicked, this, &TextEditWidget::cancel);
}

/// The buttons of the pickers are made in code, so the form does not know them.
void TextEditWidget::setUpTabOrder()
{
    QWidget *last = m_ui->btnPlayEffect;
    for (const QWidget *picker : {static_cast<QWidget *>(m_ui->framePosition),
                                  static_cast<QWidget *>(m_ui->frameStarterBg)}) {
        const QList<QPushButton *> buttons = picker->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            setTabOrder(last, button);
            last = button;
        }
    }
}

void TextEditWidget::setUpShortcuts()
{
    const auto add = [this](const QKeySequence &keys, const auto &slot) {
        auto *shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    add(QKeySequence(Qt::CTRL + Qt::Key_Return), &TextEditWidget::save);
    add(QKeySequence(Qt::CTRL + Qt::Key_Enter), &TextEditWidget::save);
    add(QKeySequence(Qt::Key_Escape), &TextEditWidget::leave);
    add(QKeySequence(Qt::Key_F5), [this] { updatePicture(Play::Yes); });
}

void TextEditWidget::fillEffects()
{
    const QVariant current = m_ui->cbEffect->currentData();
    m_ui->cbEffect->clear();
    const QPopupButton::Values effects = ValueLists::transitions();
    for (const auto &effect : effects)
        m_ui->cbEffect->addItem(effect.first, effect.second);
    m_ui->cbEffect->setCurrentIndex(m_ui->cbEffect->findData(current));
}

void TextEditWidget::setItem(ProjectItem *item)
{
    begin(item, false);
}

void TextEditWidget::setAllSlides()
{
    ProjectItem *shared = nullptr;
    if (m_editor.project()) {
        const ProjectEditor::Slides &slides = m_editor.project()->items();
        for (ProjectItem *slide : slides) {
            // The title slide comes first, if there is one.
            if (!shared || qobject_cast<ProjectItemFirst *>(shared))
                shared = slide;
        }
    }
    begin(shared, true);
}

void TextEditWidget::begin(ProjectItem *item, bool allSlides)
{
    m_item = item;
    m_sharedStyle = allSlides ? item : nullptr;
    if (!m_item) {
        m_ui->captionPreview->clear();
        announceEdited();
        return;
    }
    const bool isStyle = m_sharedStyle && !isTitle();
    const ProjectEditor::Slides &slides = m_editor.project()->items();
    m_ui->lbText->setVisible(!isStyle);
    m_ui->teProjectItemText->setVisible(!isStyle);
    m_ui->chkTitleToo->setVisible(isStyle &&
                                  qobject_cast<ProjectItemFirst *>(slides.first()) != nullptr);
    m_ui->chkTitleToo->setChecked(false);
    m_ui->lbBackgoundColors->setVisible(isTitle());
    m_ui->frameStarterBg->setVisible(isTitle());
    fill();
    updatePicture();
    if (isStyle)
        m_ui->cbFont->setFocus();
    else
        m_ui->teProjectItemText->setFocus();
    showHeading();
    emit titleChanged(heading());
}

/// Shows the slide's own values.
void TextEditWidget::fill()
{
    m_original = m_item->caption();
    m_family = m_original.fontFamily;
    {
        const QSignalBlocker textBlocker(m_ui->teProjectItemText);
        m_ui->teProjectItemText->setPlainText(m_original.text);
        m_ui->teProjectItemText->document()->setModified(false);
        m_ui->teProjectItemText->moveCursor(QTextCursor::End);
    }
    {
        // A family that is not installed is kept, and named.
        const QSignalBlocker fontBlocker(m_ui->cbFont);
        m_ui->cbFont->setCurrentFont(QFont(m_family));
        m_ui->cbFont->setEditText(m_family);
    }
    m_ui->cbColor->setColor(m_original.textColor);
    m_ui->cbBgColor->setColor(m_original.backgroundColor);
    int effect = m_ui->cbEffect->findData(m_original.effect);
    if (effect < 0) {
        m_ui->cbEffect->addItem(translatedTransitionName(m_original.effect), m_original.effect);
        effect = m_ui->cbEffect->count() - 1;
    }
    m_ui->cbEffect->setCurrentIndex(effect);
    m_ui->framePosition->setPosition(m_original.position);
    if (const auto *title = qobject_cast<ProjectItemFirst *>(m_item)) {
        m_originalBackground = title->backgroundIndex();
        m_shownBackground = m_originalBackground;
        m_ui->frameStarterBg->setBackground(m_originalBackground);
    }
}

bool TextEditWidget::isTitle() const
{
    return qobject_cast<ProjectItemFirst *>(m_item) != nullptr;
}

QString TextEditWidget::heading() const
{
    if (isTitle())
        return tr("Edit style for 'Starter' slide");
    if (m_item == m_sharedStyle)
        return tr("Edit style for All slides");
    return tr("Edit style for '%1' slide").arg(m_item->title());
}

void TextEditWidget::showHeading()
{
    if (!m_item)
        return;
    QLabel &label = *m_ui->lbTextEditSlideName;
    const QString text = heading();
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideMiddle, label.width()));
    label.setToolTip(label.text() == text ? QString() : text);
    label.setAccessibleName(text);
}

CaptionStyle TextEditWidget::caption() const
{
    CaptionStyle caption = m_original;
    // The field changes some white space; a text that was not edited stays as it is.
    if (m_ui->teProjectItemText->document()->isModified())
        caption.text = m_ui->teProjectItemText->toPlainText();
    caption.fontFamily = m_family;
    caption.textColor = m_ui->cbColor->color();
    caption.backgroundColor = m_ui->cbBgColor->color();
    caption.effect = m_ui->cbEffect->currentData().toInt();
    caption.position = m_ui->framePosition->position();
    return caption;
}

bool TextEditWidget::isEdited() const
{
    if (!m_item)
        return false;
    const bool otherBackground = isTitle() && m_ui->frameStarterBg->background() >= 0 &&
                                 m_ui->frameStarterBg->background() != m_originalBackground;
    return otherBackground || m_ui->chkTitleToo->isChecked() || caption() != m_original;
}

void TextEditWidget::updatePicture(Play play)
{
    const ProjectFile *project = m_editor.project();
    if (!m_item || !project)
        return;
    announceEdited();
    constexpr int kSecond = 1000; // ms
    CaptionPictureRequest request;
    request.isTitle = isTitle();
    request.slide = SlideState::of(*m_item);
    request.slide.caption = caption();
    if (m_item == m_sharedStyle && !request.slide.caption.isVisible())
        request.slide.caption.text = tr("Text here");
    if (request.isTitle && m_ui->frameStarterBg->background() >= 0)
        request.slide.backgroundIndex = m_ui->frameStarterBg->background();
    request.video = {project->resolution(), project->origRatio(), project->scaleToFit()};
    request.play = play == Play::Yes;
    request.milliseconds = m_editor.transitionSeconds() * kSecond;
    m_ui->captionPreview->setSubject(request);
}

void TextEditWidget::announceEdited()
{
    if (isEdited() == m_edited)
        return;
    m_edited = !m_edited;
    emit editedChanged(m_edited);
}

/// A text in the colour that suited the background before gets the one that suits this one.
void TextEditWidget::onBackgroundChosen(int index)
{
    const int before = m_shownBackground;
    m_shownBackground = index;
    if (m_ui->cbColor->color() == titleCaptionColor(before))
        m_ui->cbColor->setColor(titleCaptionColor(index));
    updatePicture();
}

ProjectEditor::Slides TextEditWidget::styledSlides() const
{
    ProjectEditor::Slides slides = m_editor.project()->items();
    if (!m_ui->chkTitleToo->isChecked() && qobject_cast<ProjectItemFirst *>(slides.first()))
        slides.removeFirst();
    return slides;
}

TextEditWidget::Edits TextEditWidget::edits() const
{
    if (!isEdited())
        return {};
    Edits edits;
    const bool allPhotos = m_item == m_sharedStyle && !isTitle();
    const ProjectEditor::Slides slides = allPhotos ? styledSlides() : ProjectEditor::Slides{m_item};
    for (ProjectItem *slide : slides) {
        SlideState state = SlideState::of(*slide);
        const QString text = state.caption.text;
        state.caption = caption();
        state.caption.changed = true;
        if (allPhotos)
            state.caption.text = text;
        else if (isTitle() && m_ui->frameStarterBg->background() >= 0)
            state.backgroundIndex = m_ui->frameStarterBg->background();
        edits.append({slide, state});
    }
    return edits;
}

void TextEditWidget::save()
{
    if (!m_item || !m_editor.project())
        return;
    CaptionStyle edited = caption();
    edited.changed = true;
    const int background = m_ui->frameStarterBg->background();
    auto *title = qobject_cast<ProjectItemFirst *>(m_item);
    const bool otherBackground = title && background >= 0 && background != m_originalBackground;
    // Nothing is read from the controls any more while the change is announced.
    ProjectItem *item = m_item;
    const bool allPhotos = m_item == m_sharedStyle && !title;
    m_item = nullptr;
    if (allPhotos) {
        m_editor.setCaptionStyle(styledSlides(), edited);
    } else if (otherBackground) {
        m_editor.beginStep(QT_TRANSLATE_NOOP("velmora::ProjectEditor", "Change title slide"));
        m_editor.setCaption({item}, edited);
        m_editor.setTitleSlide(background, title->isShown());
        m_editor.endStep();
    } else {
        m_editor.setCaption({item}, edited);
    }
    end();
}

void TextEditWidget::cancel()
{
    if (m_item)
        end();
}

void TextEditWidget::leave()
{
    if (isEdited()) {
        MessageDialog::Message message;
        message.kind = MessageDialog::Kind::Question;
        message.title = tr("Discard changes");
        message.text = tr("The changes of this text have not been saved. Discard them?");
        message.buttons = QStringList{tr("DISCARD"), tr("KEEP EDITING")};
        message.dangerous = true;
        if (MessageDialog::ask(this, message).button != 0)
            return;
    }
    cancel();
}

void TextEditWidget::end()
{
    m_item = nullptr;
    m_sharedStyle = nullptr;
    m_ui->captionPreview->clear();
    announceEdited();
    emit finished();
}

void TextEditWidget::onSlidesChanged()
{
    if (m_item && !m_editor.project()->items().contains(m_item))
        cancel();
}

void TextEditWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showHeading();
}

void TextEditWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    m_ui->retranslateUi(this);
    fillEffects();
    showHeading();
}

} // namespace velmora
