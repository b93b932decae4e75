#include "platform/webengine/SiteQuestions.h"

#include <QCoreApplication>
#include <algorithm>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kMostOfASite = 80;
/// How many requests for the same are answered together.
constexpr std::size_t kMostWaiting = 20;

struct Wish {
    Ability ability;
    const char* words;
};

constexpr Wish kWishes[] = {
    {Ability::Place, QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to know where you are.")},
    {Ability::Notifications, QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to show notifications.")},
    {Ability::Microphone, QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to use the microphone.")},
    {Ability::Camera, QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to use the camera.")},
    {Ability::MicrophoneAndCamera,
     QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to use the microphone and the camera.")},
    {Ability::Clipboard, QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to read what you copied.")},
    {Ability::PopUps, QT_TRANSLATE_NOOP("SiteQuestions", "%1 wants to open many windows.")},
};
static_assert(std::size(kWishes) == std::size(kAbilities));

QString WordsOf(const QString& origin, Ability ability) {
    const Wish& wish = kWishes[static_cast<std::size_t>(ability)];
    const QUrl address(origin);
    const QString site = address.scheme() == QLatin1String("https")
                             ? origin.mid(origin.indexOf(QLatin1String("//")) + 2)
                             : origin;
    return QCoreApplication::translate("SiteQuestions", wish.words).arg(CutInTheMiddle(site, kMostOfASite));
}

}  // namespace

void SiteQuestions::Put(const QUrl& origin, Ability ability, Answer answer) {
    const QString site = OriginOf(origin);
    if (!MayAskForAbilities(origin) || site != OriginOf(document_)) {
        answer(Verdict::Ask);
        return;
    }
    const Verdict known = choices_.VerdictOn(site, ability);
    Question* const open = Open(site, ability);
    if (known != Verdict::Ask) {
        answer(known);
    } else if (open != nullptr && open->answers.size() < kMostWaiting) {
        open->answers.push_back(std::move(answer));
    } else if (open != nullptr || !MayAsk(site, ability)) {
        answer(Verdict::Ask);
    } else {
        open_.push_back({site, ability, {std::move(answer)}});
        if (open_.size() == 1) ShowNext();
    }
}

SiteQuestions::Question* SiteQuestions::Open(const QString& site, Ability ability) {
    const auto found = std::find_if(open_.begin(), open_.end(), [&site, ability](const Question& question) {
        return question.origin == site && question.ability == ability;
    });
    return found == open_.end() ? nullptr : &*found;
}

bool SiteQuestions::MayAsk(const QString& site, Ability ability) const {
    return shown_ < kMostQuestions && !put_off_.contains({site, ability}) && seen_area_() != nullptr;
}

void SiteQuestions::SetDocument(const QUrl& address) {
    if (OriginOf(address) != OriginOf(document_)) Withdraw();
    document_ = address;
}

bool SiteQuestions::MayOpenWindows() const {
    return MayAskForAbilities(document_) &&
           choices_.VerdictOn(OriginOf(document_), Ability::PopUps) == Verdict::Allow;
}

void SiteQuestions::OnWindowRefused() {
    Put(document_, Ability::PopUps, [](Verdict) {});
}

void SiteQuestions::ShowNext() {
    if (open_.empty()) return;
    area_ = seen_area_();
    if (area_ == nullptr) {
        Withdraw();
        return;
    }
    ++shown_;
    const QPointer<SiteQuestions> self = this;
    const auto settle = [self](Verdict verdict) {
        if (self != nullptr) self->Settle(verdict);
    };
    area_->ShowBar({.name = QLatin1String(kQuestionBar),
                    .words = WordsOf(open_.front().origin, open_.front().ability),
                    .buttons = {{.words = QCoreApplication::translate("SiteQuestions", "Allow"),
                                 .pressed = [settle] { settle(Verdict::Allow); }},
                                {.words = QCoreApplication::translate("SiteQuestions", "Block"),
                                 .pressed = [settle] { settle(Verdict::Deny); }}},
                    .closed = [settle] { settle(Verdict::Ask); },
                    .guarded = true});
}

void SiteQuestions::Settle(Verdict verdict) {
    if (open_.empty()) return;
    const Question question = std::move(open_.front());
    open_.erase(open_.begin());
    if (verdict == Verdict::Ask) {
        put_off_.insert({question.origin, question.ability});
    } else {
        choices_.SetVerdict(question.origin, question.ability, verdict);
    }
    for (const Answer& answer : question.answers)
        answer(verdict);
    ShowNext();
}

void SiteQuestions::Withdraw() {
    if (area_ != nullptr) area_->RemoveBar(QLatin1String(kQuestionBar));
    const std::vector<Question> gone = std::move(open_);
    open_.clear();
    for (const Question& question : gone) {
        for (const Answer& answer : question.answers)
            answer(Verdict::Ask);
    }
}

}  // namespace webengine
