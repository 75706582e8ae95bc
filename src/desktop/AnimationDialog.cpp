#include "AnimationDialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "session/Program.h"

namespace qv {

namespace {
constexpr int kMaxSteps = 50;
const std::array<const IntSetting*, 4> kSpeeds{&setting::CardSpeed, &setting::UndoSpeed, &setting::UndoallSpeed,
                                               &setting::ReplaySpeed};
const std::array<const char*, 4> kCaptions{"Card Moving Speed", "Undo/Redo Speed", "Undoall/Redoall Speed",
                                           "Replay Speed"};
}  // namespace

AnimationDialog::AnimationDialog(Program& app, QWidget* parent) : QDialog(parent), app_(app) {
  setWindowTitle("Animation");
  setModal(true);
  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(10);
  for (size_t i = 0; i < kSpeeds.size(); ++i) {
    frames_[i] = new QGroupBox(kCaptions[i]);
    frames_[i]->setObjectName(QString("Frame%1").arg(i + 1));
    sliders_[i] = new QSlider(Qt::Horizontal);
    sliders_[i]->setObjectName(QString("Slider%1").arg(i + 1));
    sliders_[i]->setRange(0, kMaxSteps);
    sliders_[i]->setPageStep(5);
    sliders_[i]->setSingleStep(1);
    sliders_[i]->setTickPosition(QSlider::TicksBelow);
    sliders_[i]->setTickInterval(5);
    // A stored speed outside 0 to 50 lands on the nearer end of the slider.
    sliders_[i]->setValue(kMaxSteps - app_.cRegistry.Get(*kSpeeds[i]));
    connect(sliders_[i], &QSlider::valueChanged, this, &AnimationDialog::ShowValues);
    auto* inFrame = new QVBoxLayout(frames_[i]);
    inFrame->addWidget(sliders_[i]);
    layout->addWidget(frames_[i]);
  }
  ShowValues();

  auto* ok = new QPushButton("OK");
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cmdCancel");
  connect(ok, &QPushButton::clicked, this, &AnimationDialog::Store);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  layout->addSpacing(4);
  layout->addLayout(buttons);
  setMinimumWidth(360);

  app_.cSound.Animation();
}

void AnimationDialog::ShowValues() {
  for (size_t i = 0; i < frames_.size(); ++i)
    frames_[i]->setTitle(QString("%1 : %2").arg(kCaptions[i]).arg(sliders_[i]->value()));
}

void AnimationDialog::Store() {
  for (size_t i = 0; i < kSpeeds.size(); ++i) app_.cRegistry.Set(*kSpeeds[i], kMaxSteps - sliders_[i]->value());
  accept();
}

}  // namespace qv
