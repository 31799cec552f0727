#pragma once

namespace zelvor {

// Counts a question of Qt's to an item model for as long as it is being answered.
class QuestionGuard {
public:
    explicit QuestionGuard(int& questions) : m_questions(questions) { ++m_questions; }
    ~QuestionGuard() { --m_questions; }
    QuestionGuard(const QuestionGuard&) = delete;
    QuestionGuard& operator=(const QuestionGuard&) = delete;

private:
    int& m_questions;
};

} // namespace zelvor
