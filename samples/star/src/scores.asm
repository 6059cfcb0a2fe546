LoadScores:
        ret
EnterScore:
        ret
ShowScores:
        ret
