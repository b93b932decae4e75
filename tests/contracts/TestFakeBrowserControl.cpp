#include "contracts/BrowserControlContract.h"
#include "fakes/FakeBrowserControl.h"

namespace {

class FakeWorld final : public contracts::BrowserWorld {
public:
    FakeWorld() {
        Site = "http://127.0.0.1:8080";
        DeadSite = "http://127.0.0.1:9";
        Local = "C:\\pages\\local.html";
        LocalAddress = "file:///pages/local.html";
        web_[Site + "/plain"] = {"Plain words", {}, ""};
        web_[Site + "/other"] = {"Other words", {}, ""};
        web_[Site + "/untitled"] = {"", {}, ""};
        web_[Site + "/frames"] = {"Frames", {Site + "/plain", Site + "/untitled"}, ""};
        web_[Site + "/pops"] = {"Pops", {}, Site + "/other"};
        web_[Site + "/inside"] = {"Inside", {}, "", {}, "", "", "#end"};
        for (const std::string& site : SecureSites)
            AddForm(site);
        AddForm(InsecureSite);
        web_[SecureSites[0] + "/plain"] = {"Plain words", {}, ""};
        web_[LocalAddress] = {"Local words", {}, ""};
    }
    ports::BrowserControl& Browser() override { return browser_; }
    ports::BrowserControl& Other() override { return other_; }
    bool WaitFor(const std::function<bool()>& done) override {
        while (!done()) {
            const bool moved = browser_.Settle();
            if (!other_.Settle() && !moved) return done();
        }
        return true;
    }

private:
    void AddForm(const std::string& site) {
        web_[site + "/form"] = {"Form", {}, "", {"email", "word"}, "theForm", site + "/other"};
        for (const std::string name : {"owl", "lark"}) {
            const std::string sent = site + "/other?email=";
            web_[sent + name + "&word=hoot"] = {"Other words", {}, ""};
        }
    }

    fakes::FakeWeb web_;
    fakes::FakeBrowserControl browser_{web_};
    fakes::FakeBrowserControl other_{web_};
};

std::unique_ptr<contracts::BrowserWorld> MakeFakeWorld() {
    return std::make_unique<FakeWorld>();
}

}  // namespace

namespace contracts {

INSTANTIATE_TEST_SUITE_P(Fake, BrowserControlContract, testing::Values(&MakeFakeWorld));

}  // namespace contracts
