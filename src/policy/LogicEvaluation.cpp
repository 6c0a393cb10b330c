#include "policy/LogicEvaluation.h"

#include <list>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/policy/TaskFactory.h>
#include <tvpolicy/policy/andTask.h>
#include <tvpolicy/policy/notTask.h>
#include <tvpolicy/policy/orTask.h>

// The evaluation's own types; LogicFrame, a friend of the composites, holds them.
namespace tvpolicy::policy::evaluation {

// A text that grows at both ends in amortised constant time per character: the front part is
// kept reversed.
class Message {
public:
    Message() = default;
    explicit Message(std::string text) : back_(std::move(text)) {}

    std::size_t size() const { return front_.size() + back_.size(); }
    void prepend(const std::string& text) { front_.append(text.rbegin(), text.rend()); }
    void append(const std::string& text) { back_ += text; }
    /// Puts `other` after this text, copying the shorter of the two.
    void append(Message&& other)
    {
        if (other.size() > size()) {
            other.prepend(std::move(*this).text());
            *this = std::move(other);
        } else {
            append(std::move(other).text());
        }
    }
    std::string text() &&
    {
        std::string text(front_.rbegin(), front_.rend());
        text += back_;
        return text;
    }

private:
    std::string front_;
    std::string back_;
};

// A term's response with its message, which lives here (not in the response) until the
// response leaves the evaluation.
struct Outcome {
    TaskResponse* response = nullptr;
    Message message;
};

enum class Kind { And, Or, Not, Other };

}  // namespace tvpolicy::policy::evaluation

using namespace tvpolicy::policy::evaluation;

namespace {

Outcome detach(TaskResponse* response)
{
    Outcome outcome{response, {}};
    if (response != nullptr) {
        outcome.message = Message(std::move(response->message));
        response->message.clear();
    }
    return outcome;
}

TaskResponse* attach(Outcome&& outcome)
{
    if (outcome.response != nullptr) {
        outcome.response->message = std::move(outcome.message).text();
    }
    return outcome.response;
}

void traceTerm(Task& term, bool passed) { debug(term.getType() + (passed ? " Passed" : " Failed"), ""); }

Kind kindOf(const Task& task)
{
    const std::type_info& type = typeid(task);
    return type == typeid(andTask)   ? Kind::And
           : type == typeid(orTask)  ? Kind::Or
           : type == typeid(notTask) ? Kind::Not
                                     : Kind::Other;
}

}  // namespace

// One composite being performed: which term is next and what its terms gave so far.
class LogicFrame {
public:
    LogicFrame(Task& task, Kind kind) : task_(task), kind_(kind)
    {
        if (kind == Kind::And) {
            terms_ = &static_cast<andTask&>(task).terms;
        } else if (kind == Kind::Or) {
            terms_ = &static_cast<orTask&>(task).terms;
            result_ = new TaskResponse(0);
            static_cast<orTask&>(task).passed_ = false;
        }
        if (terms_ != nullptr) {
            next_ = terms_->begin();
            if (kind == Kind::And) {
                result_ = new TaskResponse(0);
            }
        }
    }

    /// The next term to perform, or null when the composite is done; `cached` is set when the
    /// factory's cache answers for the term instead.
    Task* nextTerm(TaskResponse*& cached)
    {
        cached = nullptr;
        if (kind_ == Kind::Not) {
            if (visited_) {
                return nullptr;
            }
            visited_ = true;
            term_ = static_cast<notTask&>(task_).term;
            key_ = term_->hashCode();
            cached = TaskFactory::getCachedResult(key_);
            return term_;
        }
        if (next_ == terms_->end() || stopped_) {
            return nullptr;
        }
        term_ = *next_++;
        if (kind_ == Kind::And) {
            key_ = term_->hashCode();
            cached = TaskFactory::getCachedResult(key_);
        }
        return term_;
    }

    /// Takes the outcome of the term that nextTerm gave; `fresh` when it was performed rather
    /// than taken from the cache.
    void take(Outcome&& outcome, bool fresh)
    {
        if (kind_ == Kind::And) {
            takeAndTerm(std::move(outcome), fresh);
        } else if (kind_ == Kind::Or) {
            takeOrTerm(std::move(outcome));
        } else {
            takeNotTerm(std::move(outcome), fresh);
        }
    }

    /// The composite's own outcome, once nextTerm has given null.
    Outcome finish()
    {
        if (kind_ == Kind::And) {
            auto& all = static_cast<andTask&>(task_);
            if (allPassed_ && all.skip) {
                result_->skip = true;
            }
            result_->passed = all.passed_ = allPassed_;
        } else if (kind_ == Kind::Or) {
            auto& any = static_cast<orTask&>(task_);
            result_->passed = !terms_->empty() && any.passed_;
            any.passed_ = result_->passed;
        }
        return Outcome{result_, std::move(message_)};
    }

private:
    void takeAndTerm(Outcome&& outcome, bool fresh)
    {
        TaskResponse* response = outcome.response;
        if (fresh) {
            offerToCache(outcome);
        }
        bool termPassed = response != nullptr && response->passed;
        traceTerm(*term_, termPassed);
        if (!termPassed) {
            result_->failedResponse = response;
            message_ = std::move(outcome.message);
            message_.prepend(task_.getType() + "/");
            allPassed_ = false;
            stopped_ = true;
        }
        if (key_.empty()) {
            delete response;
        }
    }

    void takeOrTerm(Outcome&& outcome)
    {
        TaskResponse* response = outcome.response;
        if (response == nullptr) {
            return;
        }
        if (response->skip) {
            result_->skip = true;
        }
        traceTerm(*term_, response->passed);
        if (response->passed) {
            static_cast<orTask&>(task_).passed_ = true;
            stopped_ = true;
        } else {
            if (message_.size() != 0) {
                message_.append(",");
            }
            outcome.message.prepend(task_.getType() + "/");
            message_.append(std::move(outcome.message));
        }
        delete response;
    }

    void takeNotTerm(Outcome&& outcome, bool fresh)
    {
        if (fresh) {
            if (outcome.response == nullptr) {
                outcome.response = new TaskResponse;
            }
            outcome.response->passed = !outcome.response->passed;
            outcome.message.prepend(task_.getType() + "/");
            offerToCache(outcome);
        }
        traceTerm(*term_, outcome.response->passed);
        static_cast<notTask&>(task_).passed_ = outcome.response->passed;
        result_ = outcome.response;
        message_ = std::move(outcome.message);
    }

    // The cache keeps responses under non-empty keys only; such a response carries its message.
    void offerToCache(Outcome& outcome)
    {
        if (!key_.empty() && outcome.response != nullptr) {
            outcome.response->message = Message(outcome.message).text();
        }
        TaskFactory::addCachedResult(key_, outcome.response);
    }

    Task& task_;
    Kind kind_;
    std::list<Task*>* terms_ = nullptr;
    std::list<Task*>::iterator next_;
    Task* term_ = nullptr;
    std::string key_;
    bool visited_ = false;   // not: its term was given
    bool stopped_ = false;   // and: a term failed; or: a term passed
    bool allPassed_ = true;  // and
    TaskResponse* result_ = nullptr;
    Message message_;
};

TaskResponse* LogicEvaluation::perform(Task& root)
{
    std::vector<LogicFrame> frames;
    frames.emplace_back(root, kindOf(root));
    for (;;) {
        LogicFrame& top = frames.back();
        TaskResponse* cached = nullptr;
        Task* term = top.nextTerm(cached);
        if (term == nullptr) {
            Outcome done = top.finish();
            frames.pop_back();
            if (frames.empty()) {
                return attach(std::move(done));
            }
            frames.back().take(std::move(done), true);
            continue;
        }
        if (cached != nullptr) {
            top.take(Outcome{cached, Message(cached->message)}, false);
            continue;
        }
        Kind kind = kindOf(*term);
        bool emptyNot = kind == Kind::Not && static_cast<notTask*>(term)->term == nullptr;
        if (kind == Kind::Other || emptyNot) {
            top.take(detach(term->perform()), true);
        } else {
            frames.emplace_back(*term, kind);
        }
    }
}
