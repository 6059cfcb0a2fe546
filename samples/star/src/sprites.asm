; Small pictures as text: width, height, a letter a pixel.

; Colours of the letters; a blank and a point are clear.
colour_of_letter:
        times 'A' - ($ - colour_of_letter) db 0
        db      kWood + 2               ; A   dark wood, hair
        db      kBlue + 15              ; B   pale blue
        db      kBlue + 11              ; C
        db      kBlue + 7               ; D
        db      kBlue + 4               ; E
        db      kRose + 4               ; F   dark rose
        db      kGold + 15              ; G   pale gold
        db      kGold + 12              ; H
        db      kGold + 8               ; I
        db      kGold + 4               ; J
        db      kEmber + 15             ; K   bright ember
        db      kEmber + 11             ; L
        db      kEmber + 7              ; M
        db      kEmber + 3              ; N
        db      kGold + 13              ; O   lit window
        db      kHill + 2               ; P   dark wall
        db      kHill + 6               ; Q   roof
        db      kRose + 8               ; R   rose
        db      kMoon + 10              ; S   skin
        db      kMoon + 5               ; T   skin in shadow
        db      kGrey + 12              ; U   grey cloth
        db      kGrey + 6               ; V
        db      kWhite                  ; W
        db      kRose + 13              ; X   pale rose
        db      kHill + 10              ; Y   lit edge
        db      kWood + 8               ; Z   wood

sprite_house:
        db      22, 22
        db      "...............QQ....."
        db      "...............QQ....."
        db      ".........QYY...QQ....."
        db      ".......QQQQQYY.QQ....."
        db      ".....QQQQQQQQQYQQ....."
        db      "...QQQQQQQQQQQQQYY...."
        db      ".QQQQQQQQQQQQQQQQQYY.."
        db      "QQQQQQQQQQQQQQQQQQQQYY"
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPOOOPPPPPPPPPPPP.."
        db      "..PPPOIOPPPPPOOIOOPP.."
        db      "..PPPIIIPPPPPOOIOOPP.."
        db      "..PPPOIOPPPPPIIIIIPP.."
        db      "..PPPOOOPPPPPOOIOOPP.."
        db      "..PPPPPPPPPPPOOIOOPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
