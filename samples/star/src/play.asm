PlayGame:
        ret
