#include "Splash.h"

#include <QLabel>
#include <QVBoxLayout>

#include "CardPainter.h"

namespace qv {

Splash::Splash(const QString& version, std::function<void()> showMain)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), showMain_(std::move(showMain)) {
  setObjectName("frmSplash");
  setAttribute(Qt::WA_DeleteOnClose);
  setStyleSheet("background: rgb(0, 64, 0); color: white;");
  auto* layout = new QVBoxLayout(this);
  auto* cards = new QHBoxLayout;
  for (int face : {13, 26, 39, 52}) {  // the four Kings
    auto* card = new QLabel;
    card->setPixmap(CardPainter::Paint({Picture::Face, static_cast<int16_t>(face)}, QSize(74, 100), devicePixelRatioF()));
    cards->addWidget(card);
  }
  layout->addLayout(cards);
  auto* imgWords = new QLabel("Quorvale");
  QFont big = imgWords->font();
  big.setPointSizeF(big.pointSizeF() * 3);
  big.setBold(true);
  imgWords->setFont(big);
  imgWords->setAlignment(Qt::AlignCenter);
  layout->addWidget(imgWords);
  auto* lblVersion = new QLabel("Version : " + version);
  lblVersion->setObjectName("lblVersion");
  lblVersion->setAlignment(Qt::AlignCenter);
  layout->addWidget(lblVersion);
  timer1_.setSingleShot(true);
  timer1_.setInterval(2000);
  connect(&timer1_, &QTimer::timeout, this, &Splash::UnloadSplash);
  timer1_.start();
}

void Splash::UnloadSplash() {
  if (!showMain_) return;  // the window comes up once, whichever came first
  timer1_.stop();
  hide();
  auto showMain = std::move(showMain_);
  showMain_ = nullptr;
  showMain();
  close();
}

}  // namespace qv
