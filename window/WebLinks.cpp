#include "window/WebLinks.h"

namespace window {

double WebLinks::Left() const {
    return Form().Left();
}

double WebLinks::Top() const {
    return Form().Top();
}

double WebLinks::Width() const {
    return Form().Width();
}

controls::WindowState WebLinks::State() const {
    return Form().State();
}

void WebLinks::SetState(controls::WindowState state) {
    Form().SetState(state);
}

void WebLinks::SetCaption(std::string_view caption) {
    Form().SetCaption(caption);
}

void WebLinks::Show() {
    Form().Show();
}

void WebLinks::SetEnabled(bool enabled) {
    Form().SetEnabled(enabled);
}

void WebLinks::Refresh() {
    Form().Refresh();
}

void WebLinks::PopupMenu(controls::Menu& menu) {
    Form().PopupMenu(menu);
}

void WebLinks::ShowMusicPanel(bool shown) {
    Form().chrome.fraMusicTab.SetVisible(shown);
}

void WebLinks::BringMusicPanelToFront() {
    Form().chrome.fraMusicTab.BringToFront();
}

void WebLinks::Form_Resize() {
    Room().layout->Form_Resize();
}

void WebLinks::PlaceBelowSplitter() {
    Room().layout->PlaceBelowSplitter();
}

void WebLinks::PlaceFavouritesPanel() {
    Room().layout->PlaceFavouritesPanel();
}

void WebLinks::NoMouseOvers() {
    Room().skin->NoMouseOvers();
}

void WebLinks::KeyDown(int key_code, int shift) {
    Room().keys->KeyDown(key_code, shift);
}

void WebLinks::Command1() {
    Room().library->Lists().Command1();
}

void WebLinks::RefillIfEmpty() {
    Room().library->Lists().RefillIfEmpty();
}

void WebLinks::AddMediaFromCommand(std::string_view path) {
    Room().library->Intake().AddMediaFromCommand(path);
}

void WebLinks::AddPlayList(std::string_view /*path*/) {}

void WebLinks::OfferToAddMedia() {
    Room().library->Intake().OfferToAddMedia();
}

void WebLinks::AddSiteToHistory(roles::HistoryKind kind, std::string_view text) {
    Room().places->History().AddSiteToHistory(kind, text);
}

void WebLinks::PopulateHistory(roles::HistoryKind kind) {
    Room().places->History().PopulateHistory(kind);
}

bool WebLinks::IsLoading() const {
    return Room().start_up->IsLoading();
}

void WebLinks::SetStage(std::string_view stage) {
    Room().activate->SetStage(stage);
}

}  // namespace window
